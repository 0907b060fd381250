// Sprites: the pictures that a scene moves about.
#include "animations/frm_AppIntro.h"
#include "host/file_name_match.h"
#include "host/file_service.h"
#include "host/graphics.h"
#include "host/log.h"
#include "host/path_service.h"
#include "host/roots.h"

#include <algorithm>
#include <charconv>

namespace quendal {

namespace {

int indexOf(const std::string& item) {
    int index = 0;
    std::from_chars(item.data(), item.data() + item.size(), index);
    return index;
}

} // namespace

std::string spriteName(const std::string& file) {
    const std::size_t cut = file.find_last_of("/\\");
    const std::size_t start = cut == std::string::npos ? 0 : cut + 1;
    const std::string name = file.substr(start, file.rfind('.') - start);
    if (start == 0) {
        return upperName(name);
    }
    const std::size_t before = file.find_last_of("/\\", cut - 1);
    const std::size_t folder = before == std::string::npos ? 0 : before + 1;
    return upperName(file.substr(folder, cut - folder) + "\\" + name);
}

void frm_AppIntro::findSprites() {
    FileList files =
        CoreLib().FileService.FindFiles(HostApp().PathService.DataPath() + "*.wmf", 1, 0, -1);
    files.Sort(-1);
    Sprites.assign(1, {});
    SpriteList.Clear();
    for (int i = 1; i <= files.Count(); ++i) {
        Sprite sprite;
        sprite.File = files.Item(i);
        sprite.Name = spriteName(sprite.File);
        Sprites.push_back(std::move(sprite));
    }
}

void frm_AppIntro::logOnce(const std::string& key, const std::string& line) {
    if (missing_.insert(key).second) {
        logLine(line);
    }
}

// 0 for a name that isn't there.
int frm_AppIntro::findSprite(const std::string& name) {
    const std::string key = upperName(name);
    for (std::size_t i = 1; i < Sprites.size(); ++i) {
        if (Sprites[i].Name == key) {
            return static_cast<int>(i);
        }
    }
    logOnce(key, "sprite missing: " + name);
    return 0;
}

void frm_AppIntro::hSprite(double x, double y, double zoom, const std::string& name) {
    const int index = findSprite(name);
    if (index == 0) {
        return;
    }
    const std::string key = std::to_string(index);
    SpriteList.Remove(key);
    SpriteList.Add(key, key);
    Sprite& sprite = Sprites[static_cast<std::size_t>(index)];
    if (!sprite.Loaded) {
        loadSprite(sprite);
    }
    sprite.Width = hX(sprite.NatWidth * zoom / 100);
    sprite.Height = hY(sprite.NatHeight * zoom / 100);
    sprite.Left = hX(x) - sprite.Width / 2;
    sprite.Top = hY(y) - sprite.Height / 2;
    sprite.Visible = true;
}

void frm_AppIntro::loadSprite(Sprite& sprite) {
    Graphics& graphics = CoreLib().Graphics;
    sprite.Loaded = true; // a broken one too, so that it is tried and told only once
    sprite.Pic = &pic_Sprite.load(pic_Sprite.last() + 1);
    sprite.Pic->setVisible(false);
    const PicturePtr picture = graphics.LoadPicture(sprite.File);
    if (picture == nullptr) {
        return;
    }
    sprite.NatWidth = picture->width();
    sprite.NatHeight = picture->height();
    sprite.SrcWidth = hX(sprite.NatWidth);
    sprite.SrcHeight = hY(sprite.NatHeight);
    sprite.Dc = graphics.Scaled(picture, sprite.SrcWidth, sprite.SrcHeight);
    sprite.Pic->setPicture(sprite.Dc);
}

void frm_AppIntro::hSpriteOff(const std::string& name) {
    if (const int index = findSprite(name); index != 0) {
        Sprites[static_cast<std::size_t>(index)].Visible = false;
        SpriteList.Remove(std::to_string(index));
    }
}

void frm_AppIntro::hSpriteClear() {
    SpriteList.Clear();
    for (Sprite& sprite : Sprites) {
        sprite.Visible = false;
    }
}

const Sprite* frm_AppIntro::spriteAt(int position) const {
    const int index = SpriteList.Exists(position) ? indexOf(SpriteList.Item(position)) : 0;
    return index == 0 ? nullptr : &Sprites[static_cast<std::size_t>(index)];
}

void frm_AppIntro::drawSprites() {
    Surface& surface = pic_Stage.surface();
    for (int i = 1; i <= SpriteList.Count(); ++i) {
        const Sprite* sprite = spriteAt(i);
        if (sprite->Visible && sprite->Dc != nullptr) {
            surface.StretchBlt({double(sprite->Left), double(sprite->Top), double(sprite->Width),
                                double(sprite->Height)},
                               sprite->Dc,
                               {0, 0, double(sprite->Dc->width()), double(sprite->Dc->height())},
                               RasterOp::SrcCopy);
        }
    }
}

void frm_AppIntro::describeSprites(FieldTable& table) const {
    table.addGetter("SpriteCount", [this] { return toFieldValue(SpriteList.Count()); });
    const auto add = [&](const char* name, auto read) {
        table.addIndexedGetter(name, [this, read](int position) -> std::optional<FieldValue> {
            const Sprite* sprite = spriteAt(position);
            return sprite == nullptr ? std::nullopt
                                     : std::optional<FieldValue>(toFieldValue(read(*sprite)));
        });
    };
    add("SpriteName", [](const Sprite& s) { return s.Name; });
    add("SpriteLeft", [](const Sprite& s) { return s.Left; });
    add("SpriteTop", [](const Sprite& s) { return s.Top; });
    add("SpriteWidth", [](const Sprite& s) { return s.Width; });
    add("SpriteHeight", [](const Sprite& s) { return s.Height; });
}

} // namespace quendal
