#include "desktop/services/rich_text_reader.h"

#include "desktop/services/rich_text_writer.h"

#include <QFile>
#include <QFileInfo>

namespace quendal {

namespace {

RtfDocument readFile(const QString& path) {
    if (!QFileInfo(path).isFile()) { // neither a folder nor a device
        return {.blocks = {}, .fault = "es gibt die Datei nicht"};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {.blocks = {}, .fault = "die Datei lässt sich nicht lesen"};
    }
    const QByteArray bytes = file.read(static_cast<qint64>(kRtfFileLimit) + 1);
    return readRtf({bytes.data(), static_cast<std::size_t>(bytes.size())});
}

} // namespace

bool loadRichText(const QString& path, QTextDocument& document, QString& fault, double scale) {
    const RtfDocument text = readFile(path);
    RichTextWriter writer(document, scale);
    writer.write(text.blocks);
    if (text.fault.empty()) {
        return true;
    }
    writer.addNotice(text.blocks.empty() ? "Dieser Hilfetext kann leider nicht angezeigt werden."
                                         : "Der Rest dieses Hilfetextes fehlt leider.");
    fault = QString::fromStdString(text.fault);
    return false;
}

} // namespace quendal
