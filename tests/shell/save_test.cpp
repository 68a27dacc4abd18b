#include "tests/shell/program.h"
#include "tests/support/rtf_reader.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QSettings>

#include <csignal>
#include <optional>
#include <sys/resource.h>

// The report as a file, through the real save dialog.

namespace {

/// As long as this lives, no file of the process can grow beyond `bytes`: the disk is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN); // a write then fails in place of the process
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        isSet_ = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

    bool IsSet() const { return isSet_; }

private:
    rlimit before_{};
    bool isSet_ = false;
};

QByteArray ContentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

void Write(const QString &path, const QByteArray &content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

QLineEdit *NameBoxOf(QDialog &dialog) {
    auto *box = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (box == nullptr)
        qFatal("the dialog has no box for the name");
    return box;
}

/// Puts a whole name into the dialog and presses Save. Typed key by key it would have the
/// dialog's list of completions drop down, which is a window of its own.
void SaveAs(QDialog &dialog, const QString &path) {
    NameBoxOf(dialog)->setText(path);
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Save), Qt::LeftButton);
}

void Cancel(QDialog &dialog) {
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
}

} // namespace

class SaveTest : public QObject {
    Q_OBJECT

public:
    explicit SaveTest(const TemporaryHome &home) : home_(home) {}

private:
    const TemporaryHome &home_;
    std::optional<Program> program_;
    std::optional<QTemporaryDir> folder_;

    QString PathOf(const QString &name) const { return folder_->filePath(name); }

    QStringList Files() const {
        return QDir(folder_->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    void PressSave() { program_->Click(program_->form.Picture2->picSave); }

    /// Saves under this path without any further question, by the image button.
    void SaveUnder(const QString &path) {
        program_->dialogs.Plan([path](QDialog &dialog) { SaveAs(dialog, path); });
        PressSave();
    }

    /// Whether a file shows what the pane shows, character by character.
    bool IsTheReport(const QString &path) const {
        const QByteArray file = ContentOf(path);
        const auto document = modReadings::RtfReader::Read(
            std::string_view(file.constData(), static_cast<std::size_t>(file.size())));
        return document.characters == modReadings::ShownCharacters(program_->RTB.Runs());
    }

private slots:
    void init() {
        folder_.emplace(home_.PathOf(QStringLiteral("reports")));
        program_.emplace();
        program_->ProceedWithSomebody();
    }
    void cleanup() {
        program_.reset();
        folder_.reset();
    }

    void TheDialogIsAsItHasToBe() {
        bool looked = false;
        program_->dialogs.Plan([&](QDialog &dialog) {
            auto *files = qobject_cast<QFileDialog *>(&dialog);
            QVERIFY(files != nullptr);
            QCOMPARE(files->windowTitle(), QStringLiteral("Orravane"));
            QCOMPARE(files->acceptMode(), QFileDialog::AcceptSave);
            QCOMPARE(files->nameFilters(), QStringList{QStringLiteral("Rich Text Format (*.rtf)")});
            QCOMPARE(files->defaultSuffix(), QStringLiteral("txt"));
            QCOMPARE(NameBoxOf(dialog)->text(), QString());
            QVERIFY(!files->testOption(QFileDialog::DontConfirmOverwrite));
            QVERIFY(files->isModal());
            looked = true;
            Cancel(dialog);
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(looked);
    }

    void TheNameIsEmptyEachTime() {
        QStringList names;
        const auto lookAndCancel = [&names](QDialog &dialog) {
            names << NameBoxOf(dialog)->text();
            Cancel(dialog);
        };
        program_->dialogs.Plan(lookAndCancel);
        PressSave();
        program_->dialogs.Plan([&](QDialog &dialog) {
            names << NameBoxOf(dialog)->text();
            SaveAs(dialog, PathOf(QStringLiteral("one.rtf")));
        });
        PressSave();
        program_->dialogs.Plan(lookAndCancel);
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(names, (QStringList{QString(), QString(), QString()}));
    }

    void ImageAndCommandButtonDoTheSame() {
        SaveUnder(PathOf(QStringLiteral("image.rtf")));
        program_->dialogs.Plan(
            [this](QDialog &dialog) { SaveAs(dialog, PathOf(QStringLiteral("command.rtf"))); });
        program_->form.cmdSave->click();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(Files(),
                 (QStringList{QStringLiteral("command.rtf"), QStringLiteral("image.rtf")}));
        QCOMPARE(ContentOf(PathOf(QStringLiteral("image.rtf"))),
                 ContentOf(PathOf(QStringLiteral("command.rtf"))));
    }

    void EnterInTheDialogSaves() {
        program_->dialogs.Plan([this](QDialog &dialog) {
            NameBoxOf(dialog)->setText(PathOf(QStringLiteral("entered.rtf")));
            QTest::keyClick(NameBoxOf(dialog), Qt::Key_Return);
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(IsTheReport(PathOf(QStringLiteral("entered.rtf"))));
    }

    void TheFileShowsWhatThePaneShows_data() {
        QTest::addColumn<QString>("caption");
        for (const char *caption :
             {"Personal Month", "Pinnacle Phases", "Karmic Lessons Number",
              "Planes Of Expression / Personal Aspects", "Comprehensive Reading"})
            QTest::newRow(caption) << QString::fromLatin1(caption);
    }
    void TheFileShowsWhatThePaneShows() {
        QFETCH(QString, caption);
        program_->ClickNode(caption);
        SaveUnder(PathOf(QStringLiteral("report.rtf")));
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(IsTheReport(PathOf(QStringLiteral("report.rtf"))));

        const QByteArray file = ContentOf(PathOf(QStringLiteral("report.rtf")));
        const auto document = modReadings::RtfReader::Read(
            std::string_view(file.constData(), static_cast<std::size_t>(file.size())));
        QVERIFY(document.characters.at(0).bold);
        QVERIFY((document.characters.at(0).ink == modReadings::Ink{128, 0, 128}));
        // The pane ends without a line break, the file with the end of its last paragraph.
        QCOMPARE(QStringView(document.Text()).toString(),
                 program_->RTB.toPlainText() + QLatin1Char('\n'));
        // The pane's own font: 12 pixels of 96 to the inch are 9 points.
        QCOMPARE(document.fonts.at(0), std::string("Verdana"));
        QCOMPARE(document.halfPoints, 18);
    }

    void WhatIsOnScreenIsSavedAndNothingIsRebuilt() {
        program_->ClickNode(QStringLiteral("Personal Day"));
        program_->clock.Advance(1); // a click would show another number now
        program_->input.txtFirstName->clear();
        SaveUnder(PathOf(QStringLiteral("report.rtf")));
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(
            ContentOf(PathOf(QStringLiteral("report.rtf"))).contains("Your Personal Day is: 6"));
    }

    void ANameWithoutAnEndingGetsTxtAndTheContentIsRtfAllTheSame() {
        SaveUnder(PathOf(QStringLiteral("report")));
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(Files(), QStringList{QStringLiteral("report.txt")});
        QVERIFY(IsTheReport(PathOf(QStringLiteral("report.txt"))));
    }

    void AnyEndingThatIsTypedStays_data() {
        QTest::addColumn<QString>("name");
        for (const char *name : {"report.rtf", "report.RTF", "report.doc", "a report.rtf"})
            QTest::newRow(name) << QString::fromLatin1(name);
        QTest::newRow("letters of other alphabets") << QStringLiteral("\u0159\u4E2D\u00DF.rtf");
    }
    void AnyEndingThatIsTypedStays() {
        QFETCH(QString, name);
        program_->dialogs.Plan([&](QDialog &dialog) { SaveAs(dialog, PathOf(name)); });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(Files(), QStringList{name});
        QVERIFY(IsTheReport(PathOf(name)));
    }

    void CancelChangesNothing_data() {
        QTest::addColumn<bool>("byEscape");
        QTest::newRow("the button") << false;
        QTest::newRow("Escape") << true;
    }
    void CancelChangesNothing() {
        QFETCH(bool, byEscape);
        const std::u16string report = program_->ReportText();
        program_->dialogs.Plan([&](QDialog &dialog) {
            NameBoxOf(dialog)->setText(PathOf(QStringLiteral("report.rtf")));
            if (byEscape)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                Cancel(dialog);
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs); // one dialog, and no message behind it
        QCOMPARE(Files(), QStringList());
        QCOMPARE(program_->ReportText(), report);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
    }

    void AFileIsReplacedOnYesOnly() {
        const QString path = PathOf(QStringLiteral("report.rtf"));
        Write(path, "an earlier report");

        // No leads back into the dialog.
        bool wasStillOpen = false;
        SeenMessage question;
        program_->dialogs.Plan([&](QDialog &dialog) {
            program_->dialogs.PlanToPress(QMessageBox::No, &question);
            SaveAs(dialog, path);
            wasStillOpen = dialog.isVisible();
            Cancel(dialog);
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(wasStillOpen);
        QVERIFY2(question.text.contains(QStringLiteral("report.rtf")), qPrintable(question.text));
        QCOMPARE(ContentOf(path), QByteArray("an earlier report"));

        program_->dialogs.Plan([&](QDialog &dialog) {
            program_->dialogs.PlanToPress(QMessageBox::Yes, &question);
            SaveAs(dialog, path);
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(IsTheReport(path));
        QCOMPARE(Files(), QStringList{QStringLiteral("report.rtf")});
    }

    void TheQuestionLooksAtTheNameWithItsEnding() {
        const QString path = PathOf(QStringLiteral("report.txt"));
        Write(path, "an earlier text");
        program_->dialogs.Plan([&](QDialog &dialog) {
            program_->dialogs.PlanToPress(QMessageBox::No);
            SaveAs(dialog, PathOf(QStringLiteral("report")));
            Cancel(dialog);
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(ContentOf(path), QByteArray("an earlier text"));
    }

    // The folder where the process stands has folders named as the user names the file.
    void TheProcessFolderDoesNotTakeTheEndingAway() {
        QTemporaryDir elsewhere;
        QVERIFY(QDir(elsewhere.path()).mkdir(QStringLiteral("report")));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(elsewhere.path()));
        program_->dialogs.Plan([this](QDialog &dialog) {
            dynamic_cast<QFileDialog &>(dialog).setDirectory(folder_->path());
            SaveAs(dialog, QStringLiteral("report"));
        });
        PressSave();
        QCOMPARE(QDir::currentPath(), QDir(elsewhere.path()).canonicalPath());
        QVERIFY(QDir::setCurrent(before));
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(Files(), QStringList{QStringLiteral("report.txt")});
        QVERIFY(IsTheReport(PathOf(QStringLiteral("report.txt"))));
    }

    void AFolderThatDoesNotExistKeepsTheDialogOpen() {
        bool wasStillOpen = false;
        SeenMessage message;
        program_->dialogs.Plan([&](QDialog &dialog) {
            program_->dialogs.PlanToPress(QMessageBox::Ok, &message);
            SaveAs(dialog, PathOf(QStringLiteral("gone/report.rtf")));
            wasStillOpen = dialog.isVisible();
            SaveAs(dialog, PathOf(QStringLiteral("report.rtf")));
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(wasStillOpen);
        QCOMPARE(
            message.text,
            QStringLiteral("The folder %1 does not exist.").arg(PathOf(QStringLiteral("gone"))));
        QCOMPARE(Files(), QStringList{QStringLiteral("report.rtf")});
        QVERIFY(IsTheReport(PathOf(QStringLiteral("report.rtf"))));
    }

    // Not everybody has a folder for documents, and the folder of the last save may be gone.
    void TheNameIsEmptyWhereTheFolderIsGone() {
        SaveUnder(PathOf(QStringLiteral("report.rtf")));
        QVERIFY(folder_->remove());
        QString name = QStringLiteral("not looked at");
        QString folder;
        program_->dialogs.Plan([&](QDialog &dialog) {
            name = NameBoxOf(dialog)->text();
            folder = dynamic_cast<QFileDialog &>(dialog).directory().absolutePath();
            Cancel(dialog);
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(name, QString());
        QCOMPARE(folder, QDir::homePath());
    }

    void NothingOfTheDialogIsRemembered_data() {
        QTest::addColumn<QByteArray>("settings");
        QTest::newRow("no file dialog was ever seen") << QByteArray();
        QTest::newRow("other programs have shown theirs")
            << QByteArray("[FileDialog]\nlastVisited=file:///srv\n\n[Other]\nkey=value\n");
    }
    void NothingOfTheDialogIsRemembered() {
        QFETCH(QByteArray, settings);
        const QString path = home_.PathOf(QStringLiteral("config/QtProject.conf"));
        QFile::remove(path);
        if (!settings.isEmpty())
            Write(path, settings);
        SaveUnder(PathOf(QStringLiteral("report.rtf")));
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(IsTheReport(PathOf(QStringLiteral("report.rtf"))));
        QCOMPARE(QFile::exists(path), !settings.isEmpty());
        if (!settings.isEmpty())
            QCOMPARE(ContentOf(path), settings);
        QFile::remove(path);
    }

    void WhatAnotherProgramNotesMeanwhileStays() {
        const QString path = home_.PathOf(QStringLiteral("config/QtProject.conf"));
        const QByteArray noted("[FileDialog]\nlastVisited=file:///srv\n\n[Other]\nkey=new\n");
        QFile::remove(path);
        program_->dialogs.Plan([&](QDialog &dialog) {
            Write(path, noted);
            SaveAs(dialog, PathOf(QStringLiteral("report.rtf")));
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(ContentOf(path), noted);
        QFile::remove(path);
        QCOMPARE(QSettings(QSettings::UserScope, QStringLiteral("QtProject")).fileName(), path);
    }

    void APlaceThatTakesNoFileIsPassedOverInSilence() {
        const std::u16string report = program_->ReportText();
        SaveUnder(QStringLiteral("/proc/report.rtf")); // nobody can write there
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(Files(), QStringList());
        QCOMPARE(program_->ReportText(), report);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
        QVERIFY(program_->form.isVisible());
    }

    void AFullDiskLeavesTheEarlierFileWhole_data() {
        QTest::addColumn<QString>("caption");
        // One is written at once, the other fits into a buffer and is written at the end.
        QTest::newRow("a long report") << QStringLiteral("Comprehensive Reading");
        QTest::newRow("a short report") << QStringLiteral("Personal Month");
    }
    void AFullDiskLeavesTheEarlierFileWhole() {
        QFETCH(QString, caption);
        const QString path = PathOf(QStringLiteral("report.rtf"));
        Write(path, "an earlier report");
        program_->ClickNode(caption);
        {
            const FullDisk disk(256);
            QVERIFY(disk.IsSet());
            program_->dialogs.Plan([&](QDialog &dialog) {
                program_->dialogs.PlanToPress(QMessageBox::Yes);
                SaveAs(dialog, path);
            });
            PressSave();
        }
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(ContentOf(path), QByteArray("an earlier report"));
        QCOMPARE(Files(), QStringList{QStringLiteral("report.rtf")}); // and nothing half done

        // With room again the same report is saved.
        program_->dialogs.Plan([&](QDialog &dialog) {
            program_->dialogs.PlanToPress(QMessageBox::Yes);
            SaveAs(dialog, path);
        });
        PressSave();
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(IsTheReport(path));
    }

    void AnEmptyPaneIsAnEmptyDocument() {
        Program *fresh = &program_.emplace(); // another run, nothing read yet
        fresh->dialogs.Plan(
            [this](QDialog &dialog) { SaveAs(dialog, PathOf(QStringLiteral("empty.rtf"))); });
        fresh->form.cmdSave->click();
        VERIFY_DIALOGS(fresh->dialogs);
        const QByteArray file = ContentOf(PathOf(QStringLiteral("empty.rtf")));
        const auto document = modReadings::RtfReader::Read(
            std::string_view(file.constData(), static_cast<std::size_t>(file.size())));
        QCOMPARE(document.Text(), std::u16string(u"\n"));
    }
};

ORRAVANE_TEST_PROGRAM(SaveTest)

#include "save_test.moc"
