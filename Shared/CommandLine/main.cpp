// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Platform/MemoryReserve.h"

#include <algorithm>
#include <clocale>
#include <csignal>
#include <exception>
#include <iterator>

using namespace lodestar;

namespace
{

std::vector<Syntax> syntaxes()
{
    std::vector<Syntax> all;
    std::ranges::transform(commandTable(), std::back_inserter(all), &Command::syntax);
    return all;
}

/// The exit code; what there is to say of the error is said.
int codeOf(const Error& error)
{
    const bool isSilent = error.domain == commandLineErrorDomain &&
                          (error.code == commandInterrupted || error.code == commandOutputClosed);
    if (!isSilent) {
        complain(Words::errorText(error));
    }
    if (error.domain == commandLineErrorDomain && error.code == commandMisused) {
        complain(Texts::say(TEXT("CommandLine", "lodestar-cli --help lists all commands.")));
    }
    return static_cast<int>(Verdict::Unknown);
}

int runCommand(const Arguments& arguments, Output& output)
{
    const auto session = Session::open(arguments.value("--data").value_or(""));
    if (!session) {
        return codeOf(session.error());
    }
    CommandContext context{arguments, *session.value(), output};
    const Result<Verdict> verdict = commandTable()[arguments.command].run(context);
    return verdict ? static_cast<int>(verdict.value()) : codeOf(verdict.error());
}

/// What a script reads is the same everywhere, and so is all that is said beside it.
bool isForScripts(const std::vector<std::string>& words)
{
    return std::ranges::count(words, "--json") > 0 || std::ranges::count(words, "--csv") > 0;
}

/// The names of days and months are the system's, where it has them in this language.
void speakTheLanguageOfTheEnvironment()
{
    const std::string language = Texts::languageOfEnvironment();
    Texts::speak(language);
    if (Texts::spokenLanguage() != "en" && std::setlocale(LC_MESSAGES, "") != nullptr) {
        std::setlocale(LC_TIME, std::setlocale(LC_MESSAGES, nullptr));
    }
}

int run(const std::vector<std::string>& words)
{
    if (!isForScripts(words)) {
        speakTheLanguageOfTheEnvironment();
    }
    const Result<Arguments> arguments = parseArguments(words, syntaxes());
    if (!arguments) {
        return codeOf(arguments.error());
    }
    Output output;
    int code = 0;
    if (arguments.value().has("--help")) {
        output.write(helpText(syntaxes(), words.front().starts_with('-') ? std::string_view() : words.front()));
    } else if (arguments.value().has("--version")) {
        output.write("lodestar-cli " LODESTAR_VERSION "\n");
    } else {
        code = runCommand(arguments.value(), output);
    }
    if (const Result<void>& written = output.result(); !written) {
        const int failed = codeOf(written.error());
        return written.error().code == commandOutputClosed && written.error().domain == commandLineErrorDomain ? code
                                                                                                               : failed;
    }
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    MemoryReserve::install();
    int code = static_cast<int>(Verdict::Unknown);
    bool isEnded = false;
    try {
        const std::vector<std::string> words(argv + 1, argv + argc);
        code = run(words);
        isEnded = code == static_cast<int>(Verdict::Unknown) && Loop::signal() != 0;
    } catch (const std::exception& error) {
        complain(error.what());
    }
    if (isEnded) {
        // So that a script that ran this ends, too. The handler went with the first signal.
        std::raise(Loop::signal());
    }
    return code;
}
