#include "shell/save_report.h"

#include "report/rtf.h"
#include "shell/app.h"
#include "shell/rich_text_box.h"

#include <QFileDialog>
#include <QFontInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <cmath>

namespace {

modReadings::RtfFont FontOf(const RichTextBox &RTB) {
    const QFont &font = RTB.font();
    modReadings::RtfFont rtf;
    rtf.family = font.families().value(0).toStdString();
    rtf.halfPoints = static_cast<int>(std::lround(font.pixelSize() * 72.0 / 96.0 * 2.0));
    return rtf;
}

void WriteWhole(const QString &name, const std::string &content) {
    QSaveFile file(name); // writes beside the file and takes its place at the end
    const auto size = static_cast<qint64>(content.size());
    // On a full disk a write can be cut short without failing, and a commit would then put
    // the stump in place; only a flush tells.
    if (file.open(QIODevice::WriteOnly) && file.write(content.data(), size) == size && file.flush())
        file.commit();
}

} // namespace

void SaveReport(const RichTextBox &RTB, QWidget *parent) {
    static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);

    QFileDialog dialog(parent, App::Title(), folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(QStringLiteral("Rich Text Format (*.rtf)"));
    // A name without an ending gets ".txt" although the content is RTF. Odd, and settled.
    dialog.setDefaultSuffix(QStringLiteral("txt"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    folder = dialog.directory().absolutePath();
    WriteWhole(dialog.selectedFiles().constFirst(), modReadings::ToRtf(RTB.Runs(), FontOf(RTB)));
}
