#include "shell/save_report.h"

#include "report/rtf.h"
#include "shell/app.h"
#include "shell/rich_text_box.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

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

/// While it lives, the process stands in another folder.
class StandingIn {
public:
    explicit StandingIn(const QString &folder) { QDir::setCurrent(folder); }
    ~StandingIn() { QDir::setCurrent(before_); }
    Q_DISABLE_COPY_MOVE(StandingIn)

private:
    const QString before_ = QDir::currentPath();
};

/// While it lives, the settings that all programs of the toolkit share are a copy: what is
/// noted there of a file dialog, such as the folders that were looked at, goes with it. Only
/// the day of the update question outlasts a run.
class BorrowedSettings {
public:
    BorrowedSettings() {
        if (!copy_.isValid())
            return;
        const QFileInfo shared(original_);
        QFile::copy(original_, copy_.filePath(shared.fileName()));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, copy_.path());
    }
    ~BorrowedSettings() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QFileInfo(original_).absolutePath());
    }
    Q_DISABLE_COPY_MOVE(BorrowedSettings)

private:
    const QString original_ =
        QSettings(QSettings::UserScope, QStringLiteral("QtProject")).fileName();
    const QTemporaryDir copy_;
};

class SaveDialog final : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

protected:
    void accept() override {
        // The dialog leaves a name without its ending where a folder of that name exists, and
        // looks for one where the process stands. It has to look in the folder it shows.
        const StandingIn folder(directory().absolutePath());
        const QDir place = QFileInfo(selectedFiles().value(0)).dir();
        if (place.exists())
            QFileDialog::accept();
        else
            QMessageBox::warning(this, windowTitle(),
                                 tr("The folder %1 does not exist.")
                                     .arg(QDir::toNativeSeparators(place.absolutePath())));
    }
};

} // namespace

void SaveReport(const RichTextBox &RTB, QWidget *parent) {
    static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QDir(folder).exists()) // the dialog would take its name for that of the file
        folder = QDir::homePath();

    const BorrowedSettings borrowed; // outlives the dialog, which notes things in its end
    SaveDialog dialog(parent, App::Title(), folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(QStringLiteral("Rich Text Format (*.rtf)"));
    // A name without an ending gets ".txt" although the content is RTF. Odd, and settled.
    dialog.setDefaultSuffix(QStringLiteral("txt"));
    QString name;
    QObject::connect(&dialog, &QFileDialog::fileSelected,
                     [&](const QString &file) { name = file; });
    if (dialog.exec() != QDialog::Accepted || name.isEmpty())
        return;
    folder = dialog.directory().absolutePath();
    WriteWhole(name, modReadings::ToRtf(RTB.Runs(), FontOf(RTB)));
}
