// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/FileSaver.h"

#include "Kit/Core/Clipboard.h"
#include "Kit/Core/ErrorText.h"
#include "Kit/Core/Toasts.h"
#include "Kit/Core/WindowDialogs.h"
#include "Tests/Kit/KitWindow.h"
#include "Tests/Support/FullDisk.h"
#include "Tests/Support/ScratchFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace lodestar
{
namespace
{

class FileSaverTest : public ::testing::Test
{
protected:
    ~FileSaverTest() override
    {
        FileSaver::answerWith({});
        WindowDialogs::shared().alert().dismiss();
        Toasts::shared().dismiss();
    }
    QString path(const char* name) const { return QString::fromStdString(folder.file(name)); }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    static std::string whyNot(const QString& path, const QByteArray& bytes = "new")
    {
        const Result<void> written = FileSaver::writeWhole(path, bytes);
        return written ? std::string() : errorText(written.error()).toStdString();
    }

    const ScratchFolder folder;
};

TEST_F(FileSaverTest, AFileIsReplacedWholeOrStaysAsItWas)
{
    const QString file = path("report.txt");
    EXPECT_EQ(whyNot(file, "old"), "");
    const QByteArray large(100'000, 'x');
    {
        const test::FullDisk disk(50'000);
        EXPECT_EQ(whyNot(file, large), "the file is too large for the disk.");
        EXPECT_NE(whyNot(path("other.txt"), large), "");
        const test::FullDisk wholly(2);
        EXPECT_EQ(whyNot(file), "the file is too large for the disk.") << "few bytes, too";
    }
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_EQ(QDir(QString::fromStdString(folder.path())).entryList(QDir::Files), QStringList("report.txt"));
    EXPECT_EQ(whyNot(file, large), "");
    EXPECT_EQ(contentOf(file), large);

    EXPECT_EQ(whyNot(QString::fromStdString(folder.path())), "this is the name of a folder.");
    EXPECT_EQ(whyNot(path("none/report.txt")), "the folder does not exist.");
    EXPECT_EQ(whyNot("/dev/null"), "this is the name of a device.");
    EXPECT_EQ(whyNot("/sys/report.txt"), "you may not write there.");
}

TEST_F(FileSaverTest, AToastNamesTheFileAndAnAlertTellsWhyThereIsNone)
{
    std::vector<std::string> suggested;
    QString answer;
    FileSaver::answerWith([&](const QString& name) {
        suggested.push_back(name.toStdString());
        return answer;
    });
    int asked = 0;
    const auto bytes = [&] {
        ++asked;
        return QByteArray("x");
    };
    FileSaver::save("../.event\n1042/" + QString(300, 'y') + ".md", bytes);
    EXPECT_EQ(asked, 0) << "Cancel";
    ASSERT_EQ(suggested.size(), 1U);
    EXPECT_EQ(suggested[0].find('/'), std::string::npos);
    EXPECT_TRUE(suggested[0].starts_with("-.event 1042-yyy") && suggested[0].ends_with("\u2026.md")) << suggested[0];
    answer = path("event.md");
    int saved = 0;
    FileSaver::save("event.md", bytes, [&saved] { ++saved; });
    EXPECT_EQ(saved, 1);
    EXPECT_EQ(contentOf(answer), "x");
    EXPECT_EQ(Toasts::shared().text(), "Saved as event.md");
    EXPECT_FALSE(WindowDialogs::shared().alert().isPresented());

    Toasts::shared().dismiss();
    answer = path("none/event.md");
    FileSaver::save("event.md", bytes, [&saved] { ++saved; });
    EXPECT_EQ(saved, 1);
    EXPECT_EQ(WindowDialogs::shared().alert().title(), "Could not be saved: the folder does not exist.");
    EXPECT_FALSE(Toasts::shared().isPresented());
}

TEST_F(FileSaverTest, OnlyAFileOfBoundedSizeIsRead)
{
    QString answer = path("sheet.csv");
    FileSaver::answerWith([&](const QString&) { return answer; });
    ASSERT_TRUE(FileSaver::writeWhole(answer, "name,address"));
    const auto read = [](std::size_t limit) {
        std::string told = "(not called)";
        FileSaver::open("Import", "CSV (*.csv)", limit, [&](const Result<QByteArray>& bytes, const QString& name) {
            told = name.toStdString() + ": " +
                   (bytes ? bytes.value().toStdString() : errorText(bytes.error()).toStdString());
        });
        return told;
    };
    EXPECT_EQ(read(12), "sheet.csv: name,address");
    EXPECT_EQ(read(11), "sheet.csv: This file is too large.");
    answer = "/dev/zero";
    EXPECT_EQ(read(12), "zero: This is not a file.");
    answer = path("none.csv");
    EXPECT_EQ(read(12), "none.csv: There is no such file.");
    answer.clear();
    EXPECT_EQ(read(12), "(not called)");
}

TEST_F(FileSaverTest, QtsOwnDialogueIsAskedForTheNameAndAFileIsReplacedOnlyAfterAQuestion)
{
    const AppearanceReset reset;
    Appearance::shared().overrideReducedMotion(true);
    qputenv("HOME", QByteArray::fromStdString(folder.path()));
    const QString file = path("event.md");
    ASSERT_TRUE(FileSaver::writeWhole(file, "old"));
    KitWindow window(makeController<ViewController>());
    const auto accept = [&] {
        FileSaver::save("event.md", [] { return QByteArray("new"); });
        QObject* dialog = nullptr;
        const bool came = waitFor([&] {
            for (QObject* const each : window.view().findChildren<QObject*>()) {
                dialog = each->inherits("QQuickFileDialog") ? each : dialog;
            }
            return dialog != nullptr && dialog->property("visible").toBool();
        });
        EXPECT_TRUE(came);
        if (came) {
            EXPECT_EQ(dialog->property("selectedFile").toUrl().fileName(), "event.md");
            QMetaObject::invokeMethod(dialog, "accept");
        }
    };
    MenuOutlet& alert = WindowDialogs::shared().alert();
    accept();
    ASSERT_TRUE(waitFor([&] { return alert.isPresented(); }));
    EXPECT_EQ(alert.title(), "There is already a file named event.md.");
    alert.choose(0);
    EXPECT_EQ(contentOf(file), "old");
    QTest::qWait(0); // the dialogue goes
    accept();
    ASSERT_TRUE(waitFor([&] { return alert.isPresented(); }));
    alert.choose(1);
    EXPECT_EQ(contentOf(file), "new");
}

} // namespace
} // namespace lodestar
