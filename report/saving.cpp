#include "report/saving.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

void WriteWhole(const QString &name, const std::string &content) {
    QSaveFile file(name); // writes beside the file and takes its place at the end
    const auto size = static_cast<qint64>(content.size());
    // On a full disk a write can be cut short without failing, and a commit would then put
    // the stump in place; only a flush tells.
    if (file.open(QIODevice::WriteOnly) && file.write(content.data(), size) == size && file.flush())
        file.commit();
}

/// While it lives, the process has another current folder.
class CurrentFolder {
public:
    explicit CurrentFolder(const QString &folder) { QDir::setCurrent(folder); }
    ~CurrentFolder() { QDir::setCurrent(before_); }
    Q_DISABLE_COPY_MOVE(CurrentFolder)

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
    const QString original_ = QSettings(QSettings::UserScope, u"QtProject"_s).fileName();
    const QTemporaryDir copy_;
};

class SaveDialog final : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

protected:
    void accept() override {
        // The dialog adds no ending to a name that a folder has, and looks for such a folder
        // in the current one. It has to look in the folder that it shows.
        const CurrentFolder folder(directory().absolutePath());
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

void SaveReport(const modReadings::Report &report, const modReadings::RtfFont &font,
                const QString &title, QWidget *parent) {
    static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QDir(folder).exists()) // the dialog would take its name for that of the file
        folder = QDir::homePath();

    // Made before the dialog and so destroyed after it: the dialog writes its settings when
    // it is destroyed.
    const BorrowedSettings borrowed;
    SaveDialog dialog(parent, title, folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(u"Rich Text Format (*.rtf)"_s);
    // A name without an ending gets ".txt" although the content is RTF. Odd, and settled.
    dialog.setDefaultSuffix(u"txt"_s);
    QString name;
    QObject::connect(&dialog, &QFileDialog::fileSelected,
                     [&](const QString &file) { name = file; });
    if (dialog.exec() != QDialog::Accepted || name.isEmpty())
        return;
    folder = dialog.directory().absolutePath();
    WriteWhole(name, modReadings::ToRtf(report, font));
}
