// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/FileUserDefaults.h"
#include "Application/Adapters/PackageResources.h"
#include "Platform/Queues/MainQueue.h"
#include "Tests/Application/SystemKeychainTests.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <fstream>
#include <random>
#include <thread>

namespace lodestar
{

namespace
{

using ::testing::UnorderedElementsAreArray;

class FileUserDefaultsTests : public ::testing::Test
{
protected:
    std::string contents() const
    {
        QFile file(QString::fromStdString(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }

    QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("deeper/Lodestar.defaults")).toStdString();
};

TEST_F(FileUserDefaultsTests, EveryKeyAndValueComesBackExactly)
{
    const std::vector<std::string> texts = {"10.0.0.1",
                                            "Console.Example",
                                            "console.example",
                                            "a/b\\c//d",
                                            "/",
                                            "",
                                            " trailing ",
                                            "%41",
                                            "%",
                                            "[fe80::1%eth0]:12443",
                                            "a=b;c,d",
                                            "@Invalid()",
                                            "\"quoted\"",
                                            "true",
                                            "Strings/x",
                                            "\xE6\x9D\xB1 \xFF\n\r\t",
                                            std::string("nul\0nul", 7),
                                            std::string(10'000, 'k')};
    {
        FileUserDefaults defaults(path);
        for (const std::string& text : texts) {
            defaults.setString(text, text);
        }
        defaults.setBool(true, "requirePassword");
        defaults.setBool(false, "showedPreview");
        defaults.setBool(true, "was a text");
        defaults.setString("now a text", "was a text");
        defaults.setString("removed", "removed");
        defaults.removeObjectForKey("removed");
    }
    const FileUserDefaults defaults(path);
    auto keys = texts;
    keys.insert(keys.end(), {"requirePassword", "showedPreview", "was a text"});
    EXPECT_THAT(defaults.allKeys(), UnorderedElementsAreArray(keys));
    for (const std::string& text : texts) {
        EXPECT_EQ(defaults.stringForKey(text), text);
        EXPECT_FALSE(defaults.boolForKey(text));
    }
    EXPECT_TRUE(defaults.boolForKey("requirePassword"));
    EXPECT_EQ(defaults.stringForKey("requirePassword"), std::nullopt);
    EXPECT_FALSE(defaults.boolForKey("showedPreview"));
    EXPECT_EQ(defaults.stringForKey("was a text"), "now a text");
    EXPECT_EQ(defaults.stringForKey("removed"), std::nullopt);
}

TEST_F(FileUserDefaultsTests, TheFileIsPrivateAndAlone)
{
    FileUserDefaults defaults(path);
    defaults.setString("first-key", "console");
    ASSERT_TRUE(defaults.synchronize());
    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    const QString file = QString::fromStdString(path);
    EXPECT_EQ(QFile::permissions(file), owner);
    EXPECT_EQ(QFile::permissions(QFileInfo(file).path()), owner | QFile::ExeOwner | QFile::ExeUser);

    // What a killed process left: half of a file, and a lock of another machine.
    std::ofstream(path + ".new") << "[Strings]\nfirst-";
    std::ofstream(path + ".lock") << "1\nLodestar\nanother-machine\nid\nboot\n";
    QFile::setPermissions(file, owner | QFile::ReadOther);
    defaults.setString("second-key", "console");
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_EQ(QFile::permissions(file), owner);
    EXPECT_THAT(contents(), ::testing::AllOf(::testing::HasSubstr("second-key"),
                                             ::testing::Not(::testing::HasSubstr("first-key"))));
    QFile::remove(file + QStringLiteral(".lock"));
    EXPECT_EQ(QDir(QFileInfo(file).path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(FileUserDefaultsTests, WritesBehindTheCallersBack)
{
    FileUserDefaults defaults(path);
    defaults.setString("v", "k");
    const auto arrived = [this] { return FileUserDefaults(path).stringForKey("k") == "v"; };
    EXPECT_TRUE(MainQueue::shared().runUntil(arrived, std::chrono::seconds(20)));
}

TEST_F(FileUserDefaultsTests, AnUnwritablePlaceStillAnswers)
{
    const std::string blocked = folder.filePath(QStringLiteral("file")).toStdString();
    std::ofstream(blocked) << "in the way";
    FileUserDefaults below(blocked + "/Lodestar.defaults");
    FileUserDefaults onFolder(folder.path().toStdString());
    for (FileUserDefaults* defaults : {&below, &onFolder}) {
        EXPECT_TRUE(defaults->synchronize()) << "nothing to write";
        defaults->setString("v", "k");
        defaults->setBool(true, "b");
        EXPECT_FALSE(defaults->synchronize());
        EXPECT_EQ(defaults->stringForKey("k"), "v");
        EXPECT_TRUE(defaults->boolForKey("b"));
        EXPECT_FALSE(defaults->synchronize()) << "still not written";
    }
    QFile::remove(QString::fromStdString(blocked));
    EXPECT_TRUE(below.synchronize()) << "the place is free now";
    EXPECT_EQ(FileUserDefaults(blocked + "/Lodestar.defaults").stringForKey("k"), "v");
}

TEST_F(FileUserDefaultsTests, ADamagedFileIsReadAsFarAsItGoesAndReplaced)
{
    {
        FileUserDefaults defaults(path);
        defaults.setString("kept", "console");
        defaults.setString(std::string(2000, 'x'), "filler");
    }
    const std::string whole = contents();
    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round) {
        std::string damaged = whole;
        for (int i = 0; i < 1 + round % 20; ++i) {
            damaged[random() % damaged.size()] = static_cast<char>(random() % 256);
        }
        damaged.resize(round % 3 == 0 ? random() % damaged.size() : damaged.size());
        damaged += round % 5 == 0 ? "\n[Strings\nnonsense\n=\n%ZZ=\\x" : "";
        std::ofstream(path, std::ios::binary) << damaged;
        FileUserDefaults defaults(path);
        defaults.setString("new", "added");
        ASSERT_TRUE(defaults.synchronize()) << round;
        EXPECT_EQ(FileUserDefaults(path).allKeys(), defaults.allKeys()) << round;
        EXPECT_EQ(FileUserDefaults(path).stringForKey("added"), "new");
    }
    std::ofstream(path, std::ios::binary) << whole << "\n[Broken\nno sense at all";
    EXPECT_EQ(FileUserDefaults(path).stringForKey("console"), "kept");
}

TEST_F(FileUserDefaultsTests, ManyThreadsLoseNothing)
{
    {
        FileUserDefaults defaults(path);
        std::vector<std::thread> threads;
        threads.reserve(8);
        for (int t = 0; t < 8; ++t) {
            threads.emplace_back([&defaults, t] {
                for (int i = 0; i < 200; ++i) {
                    const std::string key = std::to_string(t) + "/" + std::to_string(i);
                    defaults.setString(key, key);
                    if (i % 2 == 1) {
                        defaults.removeObjectForKey(key);
                    }
                    if (i % 50 == 0) {
                        EXPECT_TRUE(defaults.synchronize());
                    }
                    EXPECT_EQ(defaults.stringForKey(key).has_value(), i % 2 == 0);
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
    EXPECT_EQ(FileUserDefaults(path).allKeys().size(), 800U);
}
} // namespace

} // namespace lodestar

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 2 && std::string_view(argv[1]) == "--keychain") {
        return lodestar::test::runKeychainCalls();
    }
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
