#include "report/rtf.h"
#include "tests/shell/file_dialog.h"
#include "tests/shell/window_test.h"

#include <QDir>
#include <QFileDialog>
#include <QSettings>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

// The report as a file, through the real save dialog.

namespace {

/// As long as this lives, no file of the process can grow beyond `bytes`: the disk is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN); // a write then fails in place of the process
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            qFatal("cannot set the limit");
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit before_{};
};

/// As long as this lives, the disk fails when bytes have to be on it.
class BrokenDisk {
public:
    BrokenDisk() { isBroken = true; }
    ~BrokenDisk() { isBroken = false; }
    Q_DISABLE_COPY_MOVE(BrokenDisk)

    static inline bool isBroken = false;
};

} // namespace

/// Stands in for the system's own, for the program and the toolkit alike.
extern "C" int fsync(int descriptor) {
    if (!BrokenDisk::isBroken)
        return static_cast<int>(syscall(SYS_fsync, descriptor));
    errno = EIO;
    return -1;
}

namespace {

void Write(const QString &path, const QByteArray &content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

class SaveTest : public WindowTest {
    Q_OBJECT

    std::optional<QTemporaryDir> folder_;

    QString PathOf(const QString &name) const { return folder_->filePath(name); }

    QStringList Files() const {
        return QDir(folder_->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// Presses Save and does `act` to the dialog that comes up.
    void Save(std::function<void(QDialog &)> act) {
        dialogs.Plan(std::move(act));
        Click(form.Picture2->picSave);
    }

    /// Saves under this path without any further question.
    void SaveUnder(const QString &path) {
        Save([&path](QDialog &dialog) { SaveAs(dialog, path); });
    }

    /// Saves over a file, with Yes to the question.
    void Replace(const QString &path, QString *question = nullptr) {
        Save([this, &path, question](QDialog &dialog) {
            dialogs.PlanToPress(QMessageBox::Yes, question);
            SaveAs(dialog, path);
        });
    }

    /// Whether a file is the whole report of the pane, in the pane's font: 12 pixels of 96 to
    /// the inch are 9 points.
    bool IsTheReport(const QString &path) const {
        return ContentOf(path).toStdString() ==
               modReadings::ToRtf(RTB.ShownReport(), {"Verdana", 18});
    }

private slots:
    void init() {
        folder_.emplace(TemporaryHome::PathOf(u"reports"_s));
        WindowTest::init();
        ProceedWithSomebody();
    }

    void TheDialogIsAsItHasToBe() {
        bool looked = false;
        Save([&looked](QDialog &dialog) {
            const auto *files = qobject_cast<QFileDialog *>(&dialog);
            QVERIFY(files != nullptr);
            QCOMPARE(files->windowTitle(), u"Orravane"_s);
            QCOMPARE(files->acceptMode(), QFileDialog::AcceptSave);
            QCOMPARE(files->nameFilters(), QStringList{u"Rich Text Format (*.rtf)"_s});
            QCOMPARE(files->defaultSuffix(), u"txt"_s);
            QCOMPARE(NameBoxOf(dialog)->text(), QString());
            Cancel(dialog);
            looked = true;
        });
        QVERIFY(looked);
    }

    void TheNameIsEmptyEachTime() {
        QStringList names;
        QStringList folders;
        const auto look = [&](QDialog &dialog) {
            names << NameBoxOf(dialog)->text();
            folders << dynamic_cast<QFileDialog &>(dialog).directory().absolutePath();
            Cancel(dialog);
        };
        Save([this](QDialog &dialog) {
            dynamic_cast<QFileDialog &>(dialog).setDirectory(folder_->path());
            SaveAs(dialog, u"one.rtf"_s);
        });
        Save(look);
        // Not everybody has a folder for documents, and the folder of the last save may go.
        QVERIFY(folder_->remove());
        Save(look);
        QCOMPARE(names, (QStringList{QString(), QString()}));
        QCOMPARE(folders, (QStringList{folder_->path(), QDir::homePath()}));
    }

    // What is on screen is saved, and nothing is rebuilt for it.
    void TheFileIsTheReportOfThePane() {
        for (const QString &caption :
             {u"Personal Day"_s, u"Pinnacle Phases"_s, u"Planes Of Expression / Personal Aspects"_s,
              u"Comprehensive Reading"_s}) {
            ClickNode(caption);
            const modReadings::Report shown = RTB.ShownReport();
            clock.Advance(1); // a click would show another number now
            ForgetAllPeople();
            SaveUnder(PathOf(u"report.rtf"_s));
            QVERIFY(RTB.ShownReport() == shown);
            QVERIFY(IsTheReport(PathOf(u"report.rtf"_s)));
            QVERIFY(QFile::remove(PathOf(u"report.rtf"_s)));
        }
        Save([this](QDialog &dialog) { // with Enter
            NameBoxOf(dialog)->setText(PathOf(u"entered.rtf"_s));
            QTest::keyClick(NameBoxOf(dialog), Qt::Key_Return);
        });
        QVERIFY(IsTheReport(PathOf(u"entered.rtf"_s)));
        dialogs.Plan([this](QDialog &dialog) { SaveAs(dialog, PathOf(u"command.rtf"_s)); });
        form.cmdSave->click();
        QVERIFY(IsTheReport(PathOf(u"command.rtf"_s)));

        RTB.ShowReport({});
        SaveUnder(PathOf(u"empty.rtf"_s));
        QVERIFY(IsTheReport(PathOf(u"empty.rtf"_s)));
    }

    void ANameWithoutAnEndingGetsTxtAndTheContentIsRtfAllTheSame() {
        SaveUnder(PathOf(u"report"_s));
        QCOMPARE(Files(), QStringList{u"report.txt"_s});
        QVERIFY(IsTheReport(PathOf(u"report.txt"_s)));
    }

    void AnyEndingThatIsTypedStays() {
        for (const QString &name : {u"report.rtf"_s, u"report.RTF"_s, u"report.doc"_s,
                                    u"a report.rtf"_s, u"\u0159\u4E2D\u00DF.rtf"_s}) {
            SaveUnder(PathOf(name));
            QCOMPARE(Files(), QStringList{name});
            QVERIFY(IsTheReport(PathOf(name)));
            QVERIFY(QFile::remove(PathOf(name)));
        }
    }

    void CancelChangesNothing() {
        const std::u16string report = ReportText();
        for (const bool byEscape : {false, true}) {
            Save([&](QDialog &dialog) { // one dialog, and no message behind it
                NameBoxOf(dialog)->setText(PathOf(u"report.rtf"_s));
                if (byEscape)
                    QTest::keyClick(&dialog, Qt::Key_Escape);
                else
                    Cancel(dialog);
            });
            QCOMPARE(Files(), QStringList());
            QCOMPARE(ReportText(), report);
            QCOMPARE(Page(), u"Picture2"_s);
        }
    }

    void AFileIsReplacedOnYesOnly() {
        // The question looks at the name with its ending.
        for (const QString &typed : {u"report.txt"_s, u"report"_s}) {
            const QString path = PathOf(u"report.txt"_s);
            Write(path, "an earlier report");
            // A second name of the file sees every byte that would be written into it.
            const QString secondName = PathOf(u"second name"_s);
            std::filesystem::create_hard_link(path.toStdU16String(), secondName.toStdU16String());

            bool wasStillOpen = false;
            QString question;
            Save([&](QDialog &dialog) { // No leads back into the dialog
                dialogs.PlanToPress(QMessageBox::No, &question);
                SaveAs(dialog, PathOf(typed));
                wasStillOpen = dialog.isVisible();
                Cancel(dialog);
            });
            QVERIFY(wasStillOpen);
            QVERIFY2(question.contains(u"report.txt"_s), qPrintable(question));
            QCOMPARE(ContentOf(path), QByteArray("an earlier report"));

            Replace(PathOf(typed));
            QVERIFY(IsTheReport(path));
            QCOMPARE(ContentOf(secondName), QByteArray("an earlier report"));
            QVERIFY(QFile::remove(secondName));
            QCOMPARE(Files(), QStringList{u"report.txt"_s});
        }
    }

    // The folder where the process stands has folders named as the user names the file.
    void TheProcessFolderDoesNotTakeTheEndingAway() {
        const QTemporaryDir elsewhere;
        QVERIFY(QDir(elsewhere.path()).mkdir(u"report"_s));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(elsewhere.path()));
        Save([this](QDialog &dialog) {
            dynamic_cast<QFileDialog &>(dialog).setDirectory(folder_->path());
            SaveAs(dialog, u"report"_s);
        });
        QCOMPARE(QDir::currentPath(), QDir(elsewhere.path()).canonicalPath());
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(Files(), QStringList{u"report.txt"_s});
        QVERIFY(IsTheReport(PathOf(u"report.txt"_s)));
    }

    void AFolderThatDoesNotExistKeepsTheDialogOpen() {
        bool wasStillOpen = false;
        QString message;
        Save([&](QDialog &dialog) {
            message = dialogs.MessageOf([&] { SaveAs(dialog, PathOf(u"gone/report.rtf"_s)); });
            wasStillOpen = dialog.isVisible();
            SaveAs(dialog, PathOf(u"report.rtf"_s));
        });
        QVERIFY(wasStillOpen);
        QCOMPARE(message,
                 u"Warning, Orravane: The folder %1 does not exist. [OK]"_s.arg(PathOf(u"gone"_s)));
        QCOMPARE(Files(), QStringList{u"report.rtf"_s});
        QVERIFY(IsTheReport(PathOf(u"report.rtf"_s)));
    }

    void WhatIsNoFileOfItsOwnKeepsTheDialogOpen() {
        const QString pipe = PathOf(u"pipe.rtf"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        bool wasStillOpen = false;
        QString message;
        Save([&](QDialog &dialog) {
            message = dialogs.MessageOf([&] { SaveAs(dialog, pipe); });
            wasStillOpen = dialog.isVisible();
            Cancel(dialog);
        });
        QVERIFY(wasStillOpen);
        QCOMPARE(message, u"Warning, Orravane: The file %1 cannot be replaced. "
                          "Choose another name. [OK]"_s.arg(pipe));
    }

    void AFileIsReplacedWhereALinkLeads() {
        const QString file = PathOf(u"file.rtf"_s);
        const QString link = PathOf(u"link.rtf"_s);
        Write(file, "an earlier report");
        QVERIFY(QFile::link(file, link));
        Replace(link);
        QVERIFY(IsTheReport(file));
        QVERIFY(QFileInfo(link).isSymLink());

        QVERIFY(QFile::remove(file) && QFile::remove(link));
        QVERIFY(QFile::link(PathOf(u"gone/file.rtf"_s), link));
        QString message;
        Save([&](QDialog &dialog) {
            message = dialogs.MessageOf([&] { SaveAs(dialog, link); });
            Cancel(dialog);
        });
        QCOMPARE(message,
                 u"Warning, Orravane: The folder %1 does not exist. [OK]"_s.arg(PathOf(u"gone"_s)));
    }

    void TheQuestionBeforeAFileIsReplacedHasNoAsItsDefault() {
        const QString path = PathOf(u"report.rtf"_s);
        Write(path, "an earlier report");
        Save([&](QDialog &dialog) {
            dialogs.Plan([](QDialog &question) { QTest::keyClick(&question, Qt::Key_Return); });
            SaveAs(dialog, path);
            QVERIFY(dialog.isVisible());
            Cancel(dialog);
        });
        QCOMPARE(ContentOf(path), QByteArray("an earlier report"));
    }

    void NothingOfTheDialogIsRemembered() {
        const QString path = TemporaryHome::PathOf(u"config/QtProject.conf"_s);
        const QByteArray noted("[FileDialog]\nlastVisited=file:///srv\n\n[Other]\nkey=value\n");
        QFile::remove(path);
        SaveUnder(PathOf(u"1.rtf"_s)); // no program has ever shown a file dialog
        QVERIFY(!QFile::exists(path));
        Save([&](QDialog &dialog) { // another program notes something meanwhile
            Write(path, noted);
            SaveAs(dialog, PathOf(u"2.rtf"_s));
        });
        QCOMPARE(ContentOf(path), noted);
        SaveUnder(PathOf(u"3.rtf"_s)); // other programs have shown theirs
        QCOMPARE(ContentOf(path), noted);
        QCOMPARE(QSettings(QSettings::UserScope, u"QtProject"_s).fileName(), path);
        QFile::remove(path);
    }

    void WhatFailsOnceTheDialogHasClosedIsPassedOverInSilence() {
        const std::u16string report = ReportText();
        {
            const FullDisk disk(0);
            SaveUnder(PathOf(u"report.rtf"_s));
        }
        QCOMPARE(Files(), QStringList());
        QCOMPARE(ReportText(), report);
        QCOMPARE(Page(), u"Picture2"_s);
        QVERIFY(form.isVisible());
    }

    void ADiskThatTellsOfItsFailureAtTheEndLeavesTheEarlierFileWhole() {
        const QString path = PathOf(u"report.rtf"_s);
        Write(path, "an earlier report");
        {
            const BrokenDisk disk;
            Replace(path);
            SaveUnder(PathOf(u"another.rtf"_s));
        }
        QCOMPARE(ContentOf(path), QByteArray("an earlier report"));
        QCOMPARE(Files(), QStringList{u"report.rtf"_s});
        Replace(path);
        QVERIFY(IsTheReport(path));
    }

    void AFullDiskLeavesTheEarlierFileWhole() {
        const QString path = PathOf(u"report.rtf"_s);
        // One is written at once, the other fits into a buffer and is written at the end.
        for (const QString &caption : {u"Comprehensive Reading"_s, u"Personal Month"_s}) {
            Write(path, "an earlier report");
            ClickNode(caption);
            {
                const FullDisk disk(256);
                Replace(path);
            }
            QCOMPARE(ContentOf(path), QByteArray("an earlier report"));
            QCOMPARE(Files(), QStringList{u"report.rtf"_s}); // and nothing half done
            Replace(path);                                   // with room again
            QVERIFY(IsTheReport(path));
        }
    }
};

ORRAVANE_TEST_PROGRAM(SaveTest)

#include "save_test.moc"
