// What stands behind a report that leaves the window, by the same tests on every system.

#include "report/borrowed_settings.h"
#include "report/flush_to_disk.h"
#include "report/print_job.h"
#include "report/saving.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// --- On disk

TEST(FlushToDisk, TellsWhetherAFileIsOnTheDisk) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("text");
    file.flush();
    const int descriptor = file.handle();
    EXPECT_FALSE(FlushToDisk(descriptor));
    file.close();
    EXPECT_TRUE(FlushToDisk(descriptor)); // of nothing that is open it cannot be so
}

TEST(WriteWhole, ReplacesAFileAndTellsWhyItCannot) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"ein Bericht – Ω.rtf"_s);
    for (const char *content : {"first", "and then\nanother\r\n"}) {
        EXPECT_EQ(WriteWhole(path, content), QString());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), content);
    }
    EXPECT_NE(WriteWhole(folder.filePath(u"none/file"_s), "text"), QString());
    EXPECT_NE(WriteWhole(folder.path(), "text"), QString());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

// --- Borrowed settings

/// What all programs of the toolkit share.
QVariantMap Shared() {
    QSettings settings(QSettings::UserScope, u"QtProject"_s);
    settings.setFallbacksEnabled(false); // not what the machine has for all users
    QVariantMap all;
    for (const QStringList keys = settings.allKeys(); const QString &key : keys)
        all.insert(key, settings.value(key));
    return all;
}

void Note(const QString &key, const QVariant &value) {
    QSettings(QSettings::UserScope, u"QtProject"_s).setValue(key, value);
}

TEST(BorrowedSettings, AreAsTheyWereAfterwards) {
    for (const bool notedBefore : {false, true}) {
        if (notedBefore) {
            Note(u"FileDialog/lastVisited"_s, u"a folder"_s);
            Note(u"FileDialog/history"_s, QStringList{u"one"_s, u"two"_s});
            Note(u"Other/key"_s, 7);
        }
        const QVariantMap before = Shared();
        EXPECT_EQ(before.size(), notedBefore ? 3 : 0);
        {
            const BorrowedSettings borrowed;
            EXPECT_EQ(Shared(), before); // the dialog sees what others have noted
            Note(u"FileDialog/lastVisited"_s, u"another"_s);
            Note(u"FileDialog/viewMode"_s, u"List"_s);
            EXPECT_NE(Shared(), before);
        }
        EXPECT_EQ(Shared(), before);
    }
    QSettings(QSettings::UserScope, u"QtProject"_s).clear();
}

// --- Print job

/// Without a printer there is no job. Where the test is run with one, the job is for it.
TEST(PrintJob, IsForTheDefaultPrinter) {
    const auto job = PrintJob::ForDefaultPrinter(u"A test"_s);
    ASSERT_EQ(job != nullptr, qEnvironmentVariableIsSet("ORRAVANE_TEST_PRINTER"));
    if (job == nullptr)
        return;
    const QPageLayout layout = job->Pages().pageLayout();
    const QMarginsF margins = layout.margins(QPageLayout::Millimeter);
    for (const double margin : {margins.left(), margins.top(), margins.right(), margins.bottom()})
        EXPECT_GE(margin, narrowestMargin / 100.0 - 0.01);
    EXPECT_EQ(layout.pageSize().id(), QPageSize::Letter); // of this printer, as its user wants it
    {
        QPainter painter(&job->Pages());
        painter.drawText(100, 100, u"A test"_s);
    }
    job->Submit();
}

} // namespace

int main(int argc, char *argv[]) {
    const QTemporaryDir home;
#ifndef Q_OS_WIN
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
#endif
    if (!qEnvironmentVariableIsSet("ORRAVANE_TEST_PRINTER")) // and so nobody's printer
        qputenv("CUPS_SERVER", home.filePath(u"no-server"_s).toUtf8());
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
