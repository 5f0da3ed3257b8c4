// SPDX-License-Identifier: Apache-2.0
// lodestar-enrol FOLDER: registers consoles in a data folder of Lodestar, so that it opens with them. Standard input
// has one console a line: ADDRESS USER PASSWORD NAME, percent-encoded words, as lodestar-simulator prints them. A
// password never comes on the command line, where every process of the machine could read it. A console whose address
// is registered already is left alone.
#include "Application/Model/DataFolder.h"
#include "Application/Model/FileUserDefaults.h"
#include "Application/Model/Setting.h"
#include "Application/Model/StoreStack.h"
#include "Application/OneInstance.h"
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Registry.h"
#include "Simulator/Protocol.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

using namespace lodestar;

namespace
{

void enrol(const std::string& line)
{
    std::vector<std::string> words = simulator::splitWords(line);
    if (words.size() < 3 || words.size() > 4) {
        throw std::invalid_argument("not ADDRESS USER PASSWORD NAME");
    }
    for (std::string& word : words) {
        word = simulator::decodeWord(word);
    }
    const CorvelRef corvel = insertNewCorvel();
    corvel->setAddress(words[0]);
    if (isAddressRegistered(*corvel)) {
        deleteCorvel(corvel);
        return;
    }
    corvel->setUsername(words[1]);
    corvel->setPassword(words[2]);
    corvel->setName(words.size() > 3 ? words[3] : words[0]);
    RESTHandler::sharedInstance().addCorvel(corvel);
}

/// Returns how many consoles the folder has now.
std::size_t enrolAll()
{
    RESTHandler::sharedInstance(); // lists what is registered already, before there are new records
    int number = 0;
    for (std::string line; std::getline(std::cin, line);) {
        ++number;
        try {
            if (!line.empty()) {
                enrol(line);
            }
        } catch (const std::invalid_argument& error) {
            throw std::invalid_argument("line " + std::to_string(number) + ": " + error.what());
        }
    }
    StoreStack::shared().saveContext();
    return RESTHandler::sharedInstance().corvelList().size();
}

int run(const QString& folder)
{
    if (!claimDataFolder(folder)) {
        return 1;
    }
    FileUserDefaults defaults(DataFolder::defaults(folder.toStdString()));
    StoreStack::shared().setApplicationDocumentsDirectory(DataFolder::documents(folder.toStdString()));
    const std::size_t count = enrolAll();
    // A first start would add the demonstration console and show the tour.
    defaults.setBool(true, Setting::initialLoad);
    defaults.setBool(true, Setting::showedPreview);
    std::printf("%zu consoles are registered\n", count);
    return defaults.synchronize() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || arguments[1].startsWith('-')) {
        std::fprintf(stderr, "lodestar-enrol FOLDER <CONSOLES, each line ADDRESS USER PASSWORD NAME\n");
        return 2;
    }
    try {
        return run(QDir(arguments[1]).absolutePath());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "lodestar-enrol: %s\n", error.what());
        return 1;
    }
}
