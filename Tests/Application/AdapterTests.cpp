// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/LocaleNameOrder.h"
#include "Application/Adapters/SystemKeychain.h"
#include "Application/Model/FileUserDefaults.h"
#include "Feedback/VireoLogger.h"
#include "Platform/Queues/MainQueue.h"
#include "Tests/Support/FullDisk.h"
#include "Tests/Support/ScratchFolder.h"
#include "Tests/Support/StoredPassword.h"

#include <QByteArray>
#include <QLocalServer>
#include <QLocale>
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <thread>

namespace lodestar
{

namespace
{

class FileUserDefaultsTests : public ::testing::Test
{
protected:
    std::string contents() const { return folder.read("deeper/Lodestar.defaults"); }

    const ScratchFolder folder;
    const std::string path = folder.file("deeper/Lodestar.defaults");
};

TEST_F(FileUserDefaultsTests, EveryKeyAndValueComesBackExactly)
{
    std::vector<std::string> texts = {
        "Console.Example",      "console.example", "a/b\\c//d",        "/",    "",          " %41% ",
        "[fe80::1%eth0]:12443", "@Invalid()",      "\"quoted\"=b;c,d", "true", "Strings/x", "\xE6\x9D\xB1 \xFF\n\r\t"};
    texts.emplace_back("nul\0nul", 7);
    texts.emplace_back(10'000, 'k');
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
    EXPECT_THAT(defaults.allKeys(), ::testing::UnorderedElementsAreArray(keys));
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
    EXPECT_EQ(modeOf(path), 0600U);
    EXPECT_EQ(modeOf(folder.file("deeper")), 0700U);

    // What a killed process left: half of a file, and a lock of another machine.
    std::ofstream(path + ".new") << "[Strings]\nfirst-";
    std::ofstream(path + ".lock") << "1\nLodestar\nanother-machine\nid\nboot\n";
    std::filesystem::permissions(path, std::filesystem::perms::all);
    defaults.setString("second-key", "console");
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_EQ(modeOf(path), 0600U);
    EXPECT_THAT(contents(), ::testing::AllOf(::testing::HasSubstr("second-key"),
                                             ::testing::Not(::testing::HasSubstr("first-key"))));
    std::filesystem::remove(path + ".lock");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.file("deeper")), {}), 1);
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

TEST_F(FileUserDefaultsTests, ChangesOfManyThreadsAreWrittenBehindThemAndAFullDiskIsToldOnce)
{
    FileUserDefaults defaults(path);
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&defaults, t] {
            for (int i = 0; i < 200; ++i) {
                const std::string key = std::to_string(t) + "/" + std::to_string(i);
                defaults.setString(key, key);
                if (i % 2 == 1) {
                    defaults.removeObjectForKey(key);
                }
                EXPECT_EQ(defaults.stringForKey(key).has_value(), i % 2 == 0);
            }
        });
    }
    threads.clear(); // when they have ended
    const auto areWritten = [this] { return FileUserDefaults(path).allKeys().size() == 400; };
    EXPECT_TRUE(MainQueue::shared().runUntil(areWritten, std::chrono::seconds(20)));

    std::vector<std::string> told;
    const auto listener = VireoLogger::addListener([&](const auto& entry) { told.emplace_back(entry.message); });
    const test::FullDisk disk(10);
    for (const char* change : {"a", "b"}) {
        defaults.setString(change, "key");
        EXPECT_FALSE(defaults.synchronize());
    }
    EXPECT_THAT(told, ::testing::ElementsAre(path + " could not be written. The next change tries again."));
}

TEST(SystemKeychainTests, FailsSoonWithoutAServiceAndOneThatNeverAnswersCostsOneDeadline)
{
    constexpr std::chrono::milliseconds deadline{1500};
    constexpr auto variable = "DBUS_SESSION_BUS_ADDRESS";
    const QByteArray before = qgetenv(variable);
    const ScratchFolder folder;
    const std::string path = folder.file("bus");
    qputenv(variable, ("unix:path=" + path).c_str());
    for (const bool isThere : {false, true}) {
        SCOPED_TRACE(isThere);
        QLocalServer bus; // takes the connection and then says nothing
        ASSERT_TRUE(!isThere || bus.listen(QString::fromStdString(path)));
        auto made = std::make_unique<SystemKeychain>(deadline);
        SystemKeychain& keychain = *made;
        keychain.begin();
        Keychain::install(std::move(made));
        for (int call = 0; call < 4; ++call) {
            const auto start = std::chrono::steady_clock::now();
            const int code = call % 2 == 0 ? test::readPassword().error().code : test::writePassword("p").error().code;
            const auto elapsed = std::chrono::steady_clock::now() - start;
            EXPECT_EQ(code, isThere ? Keychain::timedOut : Keychain::absent);
            EXPECT_EQ(elapsed >= deadline, isThere && call == 0);
            EXPECT_LT(elapsed, 2 * deadline);
        }
        EXPECT_EQ(test::writePassword(std::string("cut\0short", 9)).error().code, Keychain::notAText);
        EXPECT_EQ(keychain.owesAnswer(), isThere);
        bus.close(); // which lets go of the keychain's thread
        Keychain::install(nullptr);
    }
    qputenv(variable, before);
}

TEST(LocaleNameOrderTests, NamesStandWhereAPersonLooksForThem)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    std::vector<std::string> names = {"Zürich", "berlin", "Ärmelkanal", "Bern", "Aare"};
    std::ranges::sort(names, [](const std::string& first, const std::string& second) {
        return LocaleNameOrder().compare(first, second) < 0;
    });
    EXPECT_THAT(names, ::testing::ElementsAre("Aare", "Ärmelkanal", "berlin", "Bern", "Zürich"));
    QLocale::setDefault(before);
}

} // namespace

} // namespace lodestar
