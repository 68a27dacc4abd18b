#include "report/saving.h"

#include "report/borrowed_settings.h"
#include "report/on_disk.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QSaveFile>
#include <QStandardPaths>

#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

/// While it lives, the process has another current folder.
class CurrentFolder {
public:
    explicit CurrentFolder(const QString &folder) { QDir::setCurrent(folder); }
    ~CurrentFolder() { QDir::setCurrent(before_); }
    Q_DISABLE_COPY_MOVE(CurrentFolder)

private:
    const QString before_ = QDir::currentPath();
};

/// The file that is written under this name: the one that a link leads to.
QFileInfo FileBehind(const QString &name) {
    const QFileInfo file(name);
    if (!file.isSymLink())
        return file;
    const QString end = file.canonicalFilePath();
    return QFileInfo(end.isEmpty() ? file.symLinkTarget() : end);
}

/// The toolkit's save dialog or the desktop's own. What has to be said about a name is said
/// here, and so about the file that will be written: the desktop's dialog knows only what was
/// typed, without the ending that comes behind it.
class SaveDialog final : public QFileDialog {
public:
    SaveDialog(QWidget *parent, const SaveDialogLook &look, const QString &folder)
        : QFileDialog(parent, look.title, folder),
          neededEnding_(look.needsSuffix ? u'.' + look.suffix : QString()) {
        setAcceptMode(AcceptSave);
        setNameFilter(look.filter);
        setDefaultSuffix(look.suffix);
#ifdef Q_OS_WIN
        // The dialog of Windows prefers the ending of the filter to the one that is set. It knows
        // none that has a wildcard in it.
        if (!look.filter.contains(u"*."_s + look.suffix)) {
            setNameFilter(QString(look.filter).replace(u')', u"*)"_s));
            setOption(HideNameFilterDetails);
            missingEnding_ = u'.' + look.suffix;
        }
#endif
        setFileMode(AnyFile);
        setOption(DontConfirmOverwrite); // accept() does that
        if (!look.name.isEmpty())
            selectFile(look.name);
    }

    /// Shows the dialog until a file is chosen that can be written and, where there is one
    /// already, may be replaced. Returns its path, or nothing on Cancel.
    QString AskForName() {
        int result = Rejected;
        do {
            opensAgain_ = false;
            result = exec();
        } while (result != Accepted && opensAgain_);
        return result == Accepted ? name_ : QString();
    }

protected:
    void accept() override {
        if (isAsking_) // the desktop's dialog does not know of the question in front of it
            return;
        // The dialog adds no ending to a name that a folder has, and looks for such a folder
        // in the current one. It has to look in the folder that it shows.
        const CurrentFolder folder(directory().absolutePath());
        name_ = selectedFiles().value(0);
        if (QFileInfo(name_).isDir() && !IsOfTheDesktop()) {
            QFileDialog::accept(); // goes into that folder
            return;
        }
        if (!QFileInfo(name_).fileName().contains(u'.'))
            name_ += missingEnding_;
        if (!name_.endsWith(neededEnding_, Qt::CaseInsensitive))
            name_ += neededEnding_;
        isAsking_ = true;
        const bool mayBeWritten = MayBeWritten(name_);
        isAsking_ = false;
        if (mayBeWritten) {
            QFileDialog::accept();
        } else if (IsOfTheDesktop()) { // has had its say and closes; the toolkit's just stays
            opensAgain_ = true;
            if (const QDir place = QFileInfo(name_).dir(); place.exists())
                setDirectory(place);
            selectFile(QFileInfo(name_).fileName());
        }
    }

    void reject() override {
        if (!isAsking_)
            QFileDialog::reject();
    }

    void done(int result) override {
        opensAgain_ = false;
        QFileDialog::done(result);
    }

private:
    bool IsOfTheDesktop() const { return testAttribute(Qt::WA_DontShowOnScreen); }

    /// Whether a file of this name can be written and, where there is one already, may be
    /// replaced. Tells the user if not, or asks.
    bool MayBeWritten(const QString &name) {
        const QFileInfo file = FileBehind(name);
        const QString folder = QDir::toNativeSeparators(file.absolutePath());
        const QString path = QDir::toNativeSeparators(file.absoluteFilePath());
        if (!file.dir().exists())
            return Refuse(tr("The folder %1 does not exist.").arg(folder));
        if (file.exists() && (!file.isFile() || !file.isWritable()))
            return Refuse(tr("The file %1 cannot be replaced. Choose another name.").arg(path));
        if (!QFileInfo(file.absolutePath()).isWritable())
            return Refuse(tr("Nothing can be written in the folder %1.").arg(folder));
        return !file.exists() ||
               QMessageBox::warning(Front(), windowTitle(),
                                    tr("%1 already exists.\nDo you want to replace it?")
                                        .arg(QDir::toNativeSeparators(name)),
                                    QMessageBox::Yes | QMessageBox::No,
                                    QMessageBox::No) == QMessageBox::Yes;
    }

    bool Refuse(const QString &message) {
        QMessageBox::warning(Front(), windowTitle(), message);
        return false;
    }

    /// The window that messages stand in front of.
    QWidget *Front() { return IsOfTheDesktop() ? parentWidget() : this; }

    QString missingEnding_;      ///< for a name without one, where the dialog may leave it so
    const QString neededEnding_; ///< of every name; may be empty
    QString name_;               ///< what was chosen last
    bool isAsking_ = false;      ///< there is a message or a question in front of the dialog
    bool opensAgain_ = false;    ///< the dialog closes without an end
};

} // namespace

QString AskForFile(const SaveDialogLook &look, QWidget *parent) {
    static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QDir(folder).exists()) // the dialog would take its name for that of the file
        folder = QDir::homePath();

    // Made before the dialog and so destroyed after it: the dialog writes its settings when
    // it is destroyed.
    const BorrowedSettings borrowed;
    SaveDialog dialog(parent, look, folder);
    QString name = dialog.AskForName();
    if (!name.isEmpty())
        folder = dialog.directory().absolutePath();
    return name;
}

QString WriteWhole(const QString &name, std::string_view content) {
    const QFile::Permissions earlier = QFile::permissions(name); // none without a file
    QSaveFile file(name); // writes beside the file and takes its place at the end
    const auto size = static_cast<qint64>(content.size());
    // On a full disk a write can be cut short without failing, and a commit would then put
    // the stump in place; only a flush tells. And some file systems find out that there is no
    // room, or that the disk is broken, only when the bytes have to be on it, which a commit
    // asks for without heeding the answer.
    // QSaveFile gives the new file the permissions of the earlier one, but goes on without where
    // it cannot find them out or set them; to set them once more tells.
    if (!file.open(QIODevice::WriteOnly) || (earlier && !file.setPermissions(earlier)) ||
        file.write(content.data(), size) != size || !file.flush())
        return file.errorString();
    if (!IsOnDisk(file.handle()))
        return QString::fromLocal8Bit(std::strerror(errno));
    return file.commit() ? QString() : file.errorString();
}

void SaveReport(const modReadings::Report &report, const modReadings::RtfFont &font,
                const QString &title, QWidget *parent) {
    // A name without an ending gets ".txt" although the content is RTF. Odd, and settled.
    const QString name = AskForFile({title, u"Rich Text Format (*.rtf)"_s, u"txt"_s}, parent);
    if (!name.isEmpty())
        WriteWhole(name, modReadings::ToRtf(report, font));
}
