// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Arguments.h"

#include "CommandLine/Failure.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace lodestar
{
namespace
{

using Texts::say;

const Option* optionOf(const std::vector<Option>& options, std::string_view name)
{
    const auto found = std::ranges::find(options, name, &Option::name);
    return found != options.end() ? &*found : nullptr;
}

/// The command that the operands begin with; takes its words away. A name of two words counts before one of one.
const Syntax* takeCommand(std::vector<std::string>& operands, const std::vector<Syntax>& syntaxes)
{
    for (const std::ptrdiff_t words : {2, 1}) {
        if (static_cast<std::ptrdiff_t>(operands.size()) < words) {
            continue;
        }
        const std::string name = words == 2 ? operands[0] + " " + operands[1] : operands[0];
        if (const auto found = std::ranges::find(syntaxes, name, &Syntax::name); found != syntaxes.end()) {
            operands.erase(operands.begin(), operands.begin() + words);
            return &*found;
        }
    }
    return nullptr;
}

std::string usageOf(const Syntax& syntax)
{
    return std::string(syntax.name) + (syntax.operands.empty() ? "" : " ") + std::string(syntax.operands);
}

Error needsValue(const std::string& name, const Option& option)
{
    //: %1 an option, %2 a word for what it takes
    return misuse(say(TEXT("CommandLine", "%1 needs a value: %2."), {name, option.placeholder}));
}

std::string optionLine(const Option& option)
{
    constexpr std::size_t column = 26;
    std::string line = "  " + std::string(option.name);
    line.append(option.placeholder.empty() ? "" : " ").append(option.placeholder);
    line.append(line.size() < column ? column - line.size() : 1, ' ');
    return line.append(say(option.help)).append("\n");
}

} // namespace

const std::vector<Option>& commonOptions()
{
    static const std::vector<Option> options = {
        {"--console", "CONSOLE", TEXT("CommandLine", "Only this console, by name or address; may be repeated.")},
        {"--json", "", TEXT("CommandLine", "Write JSON.")},
        {"--csv", "", TEXT("CommandLine", "Write comma-separated values.")},
        {"--data", "FOLDER", TEXT("CommandLine", "Use this data folder instead of Lodestar's own.")},
        {"--help", "", TEXT("CommandLine", "Say how the command is used.")},
        {"--version", "", TEXT("CommandLine", "Say which version this is.")},
    };
    return options;
}

std::optional<std::string> Arguments::value(std::string_view option) const
{
    const auto range = m_values.equal_range(option);
    return range.first != range.second ? std::optional(std::prev(range.second)->second) : std::nullopt;
}

std::vector<std::string> Arguments::values(std::string_view option) const
{
    std::vector<std::string> all;
    const auto range = m_values.equal_range(option);
    std::transform(range.first, range.second, std::back_inserter(all), [](const auto& entry) { return entry.second; });
    return all;
}

Result<std::optional<int>> Arguments::number(std::string_view option) const
{
    const auto text = value(option);
    if (!text) {
        return std::optional<int>();
    }
    int number = 0;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), number);
    if (error != std::errc() || end != text->data() + text->size() || number < 0) {
        //: %1 an option, %2 what was given
        return misuse(say(TEXT("CommandLine", "%1 takes a number, not %2."), {option, *text}));
    }
    return std::optional(number);
}

Result<std::optional<std::chrono::seconds>> Arguments::time(std::string_view option) const
{
    using Time = std::optional<std::chrono::seconds>;
    const auto text = value(option);
    if (!text) {
        return Time();
    }
    constexpr int longest = 1'000'000;
    int number = 0;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), number);
    const std::string unit = text->substr(static_cast<std::size_t>(end - text->data()));
    const bool isTime = error == std::errc() && number > 0 && number <= longest;
    const Time time = unit == "s"                   ? Time(number)
                      : unit.empty() || unit == "m" ? Time(std::chrono::minutes(number))
                      : unit == "h"                 ? Time(std::chrono::hours(number))
                                                    : std::nullopt;
    return isTime && time
               ? Result<Time>(time)
               : misuse(say(TEXT("CommandLine", "%1 takes minutes, or a time as 30s or 2h, not %2."), {option, *text}));
}

/// One command line on its way.
class ArgumentParser
{
public:
    explicit ArgumentParser(const std::vector<Syntax>& syntaxes) : m_syntaxes(syntaxes) {}

    Result<Arguments> parse(const std::vector<std::string>& words)
    {
        for (auto word = words.begin(); word != words.end(); ++word) {
            if (*word == "--") {
                m_arguments.operands.insert(m_arguments.operands.end(), word + 1, words.end());
                break;
            }
            if (!word->starts_with('-') || *word == "-") {
                m_arguments.operands.push_back(*word);
            } else if (const Result<void> taken = takeOption(word, words.end()); !taken) {
                return taken.error();
            }
        }
        const Result<void> found = findCommand();
        return found ? Result<Arguments>(std::move(m_arguments)) : Result<Arguments>(found.error());
    }

private:
    using Word = std::vector<std::string>::const_iterator;

    Result<void> takeOption(Word& word, Word end)
    {
        const std::size_t equals = word->find('=');
        const std::string name = *word == "-h" ? "--help" : word->substr(0, equals);
        const Option* option = optionOf(commonOptions(), name);
        for (const Syntax& syntax : m_syntaxes) {
            option = option != nullptr ? option : optionOf(syntax.options, name);
        }
        if (option == nullptr) {
            return misuse(say(TEXT("CommandLine", "There is no option %1."), {name}));
        }
        std::string value;
        if (option->placeholder.empty() && equals != std::string::npos) {
            return misuse(say(TEXT("CommandLine", "%1 takes no value."), {name}));
        }
        if (!option->placeholder.empty()) {
            if (equals == std::string::npos && ++word == end) {
                return needsValue(name, *option);
            }
            value = equals == std::string::npos ? *word : word->substr(equals + 1);
            // A script's variable that is not set must not lead to the person's own folder.
            if (value.empty()) {
                return needsValue(name, *option);
            }
        }
        m_arguments.m_values.emplace(name, std::move(value));
        return {};
    }

    Result<void> findCommand()
    {
        std::vector<std::string>& operands = m_arguments.operands;
        const bool asksOnly = m_arguments.has("--help") || m_arguments.has("--version");
        const std::string first = operands.empty() ? std::string() : operands.front();
        const Syntax* const syntax = takeCommand(operands, m_syntaxes);
        if (asksOnly) {
            return {};
        }
        if (syntax == nullptr) {
            return misuse(first.empty() ? say(TEXT("CommandLine", "No command was given."))
                                        : say(TEXT("CommandLine", "There is no command %1."), {first}));
        }
        m_arguments.command = static_cast<std::size_t>(syntax - m_syntaxes.data());
        for (const auto& [name, value] : m_arguments.m_values) {
            if (optionOf(commonOptions(), name) == nullptr && optionOf(syntax->options, name) == nullptr) {
                return misuse(say(TEXT("CommandLine", "%1 takes no option %2."), {syntax->name, name}));
            }
        }
        if (syntax->most == 0 && !operands.empty()) {
            return misuse(say(TEXT("CommandLine", "There is no command %1."),
                              {std::string(syntax->name) + " " + operands.front()}));
        }
        if (operands.size() < syntax->fewest || operands.size() > syntax->most) {
            return misuse(say(TEXT("CommandLine", "It is used so: %1"), {"lodestar-cli " + usageOf(*syntax)}));
        }
        if (m_arguments.has("--json") && m_arguments.has("--csv")) {
            return misuse(say(TEXT("CommandLine", "--json and --csv exclude one another.")));
        }
        return {};
    }

    const std::vector<Syntax>& m_syntaxes;
    Arguments m_arguments;
};

Result<Arguments> parseArguments(const std::vector<std::string>& words, const std::vector<Syntax>& syntaxes)
{
    return ArgumentParser(syntaxes).parse(words);
}

std::string helpText(const std::vector<Syntax>& syntaxes, std::string_view word)
{
    std::string text = say(TEXT("CommandLine", "Watches Corvel consoles and changes nothing.")) + "\n\n";
    for (const Syntax& syntax : syntaxes) {
        if (!syntax.name.starts_with(word)) {
            continue;
        }
        text.append("lodestar-cli ").append(usageOf(syntax)).append("\n    ").append(say(syntax.summary)).append("\n");
        for (const Option& option : syntax.options) {
            text.append("  ").append(optionLine(option));
        }
    }
    text += "\n" + say(TEXT("CommandLine", "With every command:")) + "\n";
    for (const Option& option : commonOptions()) {
        text += optionLine(option);
    }
    return text + "\n" +
           say(TEXT("CommandLine",
                    "Ends with 0 when all is well, 1 after warnings, 2 after errors, and 3 when that is not known.")) +
           "\n";
}

} // namespace lodestar
