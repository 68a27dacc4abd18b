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

/// Takes back what the toolkit notes of a file dialog in a settings file of its own: which
/// folders were looked at. Only the day of the update question outlasts a run.
class ForgottenDialog {
public:
    ForgottenDialog() {
        for (const QString &key : settings_.allKeys())
            before_.insert(key, settings_.value(key));
    }
    ~ForgottenDialog() {
        settings_.sync(); // the dialog has written through an object of its own
        settings_.clear();
        for (auto entry = before_.cbegin(); entry != before_.cend(); ++entry)
            settings_.setValue(entry.key(), entry.value());
        settings_.sync();
        if (!wasThere_)
            QFile::remove(settings_.fileName());
    }
    Q_DISABLE_COPY_MOVE(ForgottenDialog)

private:
    QSettings settings_{QSettings::UserScope, QStringLiteral("QtProject")};
    QVariantHash before_;
    const bool wasThere_ = QFile::exists(settings_.fileName());
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

    const ForgottenDialog forgotten;
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
