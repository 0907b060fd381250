#include "desktop/gallery_form.h"

#include "host/graphics.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "host/window_system.h"

namespace quendal::test {

namespace {

constexpr const char* kNext = "Ico\\20\\Computer\\Signs\\Next.ico";
constexpr const char* kHelp = "Ico\\32\\Computer\\Signs\\Help.ico";
constexpr const char* kMath = "Ico\\20\\Science\\Math\\Generic.ico";

} // namespace

GalleryForm::GalleryForm() : Form("frm_Gallery", {1000, 690}) {
    setCaption("Alle Bedienelemente");
    setWindowState(WindowState::Maximised);
    design();
    hook();
}

void GalleryForm::Form_Load() {
    header.setPicture(
        CoreLib().Graphics.LoadPicture(HostApp().PathService.DataPath() + "header.gif"));
    richText.LoadFile(HostApp().PathService.DataPath() + "help\\strong.rtf");
    drawPicture();
}

bool GalleryForm::Form_KeyDown(Key key) {
    keys.push_back(key);
    return key == swallowed && key != Key::Other;
}

void GalleryForm::design() {
    header.setPlace(0, 0, 1000, 64);
    title.setTitle("Hilfe");
    title.setText("Hier stehen 'alle' wichtigen Formeln für die Berechnung");
    title.setPictureIcon(kHelp);
    title.setPlace(0, 64, 1000, 64);
    designFrame();
    designTabs();
    designMascots();
    panel.setText("Zuerst das Volumen,<br>dann die Stoffmenge.");
    panel.setPlace(672, 136, 220, 56);
    panel.setPictureIcon(kMath);
    image.setPictureIcon("Ico\\16\\Computer\\Signs\\Ok.ico");
    image.setPlace(904, 150, 24, 24);
    line.setPlace(672, 200, 316, 2);
    richText.setPlace(8, 448, 640, 150);
    bar.setButtons({{"DIALOG.OK();", "&OK", ""}, {"DIALOG.ABORT();", "&Abbrechen", ""}});
    bar.setPlace(0, 606, 1000, 52);
    status.setText("Bereit");
    status.setPlace(0, 662, 1000, 28);
}

void GalleryForm::designFrame() {
    frame.setText("pH-Wert ausrechnen");
    frame.setPictureIcon(kMath);
    frame.setPlace(8, 136, 320, 304);
    but_Plain.setText("&Fertig");
    but_Plain.setPlace(12, 44, 140, 34);
    but_Now.setText("Berechnen!");
    but_Now.setPictureIcon(kNext);
    but_Now.setBorderColors({192, 255, 192}, {0, 128, 0});
    but_Now.setPlace(164, 44, 140, 34);
    but_Off.setText("Pipette");
    but_Off.setEnabled(false);
    but_Off.setPlace(12, 84, 140, 30);
    but_Wide.setText("Beeinflussung der elektrischen Leitfähigkeit");
    but_Wide.setPictureIcon("Ico\\20\\Multimedia\\Video\\Camera.ico");
    but_Wide.setPlace(164, 84, 144, 34);
    lab_Text.setText("&Volumen der Säure:");
    lab_Text.setPlace(12, 124, 150, 22);
    lab_Long.setText("Klicke auf die            Pipette, um 10 mL Salzsäure (c = 0.8 mol/L) in das "
                     "Becherglas fließen zu lassen");
    lab_Long.setPlace(12, 152, 296, 54);
    lab_Turned.setText("pH-Wert");
    lab_Turned.setAngle(90);
    lab_Turned.setPlace(288, 210, 20, 86);
    lab_Grey.setText("Schon erledigt");
    lab_Grey.setTextColor(palette(8));
    lab_Grey.setPlace(170, 124, 130, 22);
    lab_Term.setTerm("cµV(H3O+)| = 10^-7| mol/L");
    lab_Term.setFont({.size = 18});
    lab_Term.setPlace(12, 208, 270, 30);
    lab_Fraction.setTerm("c = (nµS - nµZ)/(VµS + VµZ)");
    lab_Fraction.setFont({.size = 18});
    lab_Fraction.setPlace(12, 238, 150, 56);
    txt_Ph.setPlace(166, 248, 110, 34);
    txt_Ph.setFont({.size = 18});
    txt_Ph.setAccessibleName("pH-Wert");
    for (Control* control : std::initializer_list<Control*>{
             &but_Plain, &but_Now, &but_Off, &but_Wide, &lab_Text, &lab_Long, &lab_Turned,
             &lab_Grey, &lab_Term, &lab_Fraction, &txt_Ph}) {
        control->setContainer(frame);
    }
}

void GalleryForm::designTabs() {
    tabs.setCaptions({"&Kurze Einführung    ", "&Lernanimationen   ", "Klick- &Demos         "});
    tabs.setFont({.family = "Tahoma", .size = 14});
    tabs.setPlace(336, 136, 328, 304);
    const char* const texts[] = {"c = n / V", "n = c * V", "V = n / c"};
    options.each([&](int index, OptionButton& option) {
        option.setContainer(tabs, 0);
        option.setText(texts[index]);
        option.setPlace(16, 56.0 + 30 * index, 180, 26);
    });
    options(1).setChecked(true);
    check.setContainer(tabs, 0);
    check.setText("Sollstellen müssen gerechnet werden");
    check.setChecked(true);
    check.setPlace(16, 152, 296, 26);
    checkOff.setContainer(tabs, 0);
    checkOff.setText("Sound [ON]");
    checkOff.setEnabled(false);
    checkOff.setPlace(16, 182, 296, 26);
    rule.setContainer(tabs, 0);
    rule.setPlace(16, 214, 296, 2);
    list.setContainer(tabs, 0);
    list.setItems({"0.6", "0.8", "1.0", "1.2", "1.4"});
    list.setListIndex(2);
    list.setPlace(16, 228, 110, 32);
    list.setAccessibleName("Konzentration");
    txt_Locked.setContainer(tabs, 0);
    txt_Locked.setLocked(true);
    txt_Locked.setText("0,010 L");
    txt_Locked.setPlace(140, 228, 110, 32);
    picture.setContainer(tabs, 1);
    picture.setPlace(16, 52, 296, 236);
    picture.setBackColor({153, 204, 204});
    overlay.setContainer(tabs, 1);
    overlay.setPlace(16, 52, 296, 236);
    overlay.setOverlay(true);
}

void GalleryForm::designMascots() {
    double left = 672;
    atoms.each([&](int index, ctl_DrAtom& atom) {
        atom.setMood(index);
        atom.setOrbitSpeed(0);
        atom.setEyeMove(false);
        atom.setPlace(left, 208, 62, 62);
        left += 64;
    });
    speaker.setPlace(672, 280, 320, 150);
    speaker.setText("Denk daran: erst die Stoffmengen, dann die Konzentration!");
    speaker.setBubble(true);
    speaker.setMouthOpen(true);
    speaker.setOrbitSpeed(0);
    speaker.setEyeMove(false);
    speaker.setEyeDirection(0);
    speaker.setMood(2);
}

void GalleryForm::hook() {
    const auto tell = [this](Control& control) {
        control.onClick = [this, &control] { events.push_back("click " + control.fullName()); };
    };
    for (Control* control : std::initializer_list<Control*>{&but_Plain, &but_Now, &but_Off, &check,
                                                            &checkOff, &list, &tabs}) {
        tell(*control);
    }
    options.each([&](int, OptionButton& option) { tell(option); });
    txt_Ph.onChange = [this] { events.push_back("typed " + txt_Ph.text()); };
    txt_Ph.onKey = [this](Key key) {
        if (key == Key::Enter) {
            events.push_back("enter txt_Ph");
        }
        return key == Key::Enter;
    };
    picture.onMouse = [this](double x, double y, MouseButton) {
        events.push_back("press " + std::to_string(static_cast<int>(x)) + " " +
                         std::to_string(static_cast<int>(y)));
    };
    bar.onCommand = [this](const std::string& command) {
        events.push_back("command " + command);
        CoreLib().Windows.Unload(*this);
    };
    fileNew.onClick = [this] { events.push_back("menu mnu_FileNew"); };
}

void GalleryForm::drawPicture() {
    Surface& surface = picture.surface();
    surface.Clear();
    for (int i = 0; i <= 10; ++i) {
        const double y = 10.0 + 20 * i;
        surface.Line({4, y}, {i % 5 == 0 ? 24.0 : 14.0, y}, kBlack, i % 5 == 0 ? 2 : 1);
    }
    surface.Text({28, 100}, "5 mL", {.size = 10}, kBlack);
    for (int i = 0; i < 24; ++i) {
        const Point at{70.0 + 36 * (i % 6), 30.0 + 50 * (i / 6)};
        surface.setFillColor(i % 2 == 0 ? Color{230, 80, 60} : Color{90, 160, 230});
        surface.Circle(at, 12, kBlack);
        surface.setFillColor(kWhite);
        surface.Circle({at.x + 9, at.y - 7}, 5, kBlack);
    }
    const Point corners[] = {{20, 228}, {60, 190}, {100, 228}};
    surface.setFillColor({255, 220, 120});
    surface.Polygon(corners, kBlack);
    surface.Box({120, 200}, {180, 228}, {47, 143, 143});
    picture.drawn();
    Surface& above = overlay.surface();
    above.Clear();
    above.Line({0, 0}, {295, 235}, {200, 0, 0}, 2);
    overlay.drawn();
}

} // namespace quendal::test
