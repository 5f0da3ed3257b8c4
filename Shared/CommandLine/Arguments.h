// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine/Texts.h"
#include "Platform/Result.h"

#include <chrono>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// An option of a command. One that takes a value has a placeholder for it.
struct Option {
    std::string_view name; ///< "--every"
    std::string_view placeholder;
    Text help;
};

/// How a command line looks: a command's words, its operands, its options.
struct Syntax {
    std::string_view name;     ///< "status", "consoles add"
    std::string_view operands; ///< as the help shows them
    std::size_t fewest = 0;    ///< operands
    std::size_t most = 0;
    Text summary;
    std::vector<Option> options; ///< beside those that all commands take
};

/// A command line that was understood.
class Arguments
{
public:
    std::size_t command = 0; ///< index into the syntaxes
    std::vector<std::string> operands;

    bool has(std::string_view option) const { return m_values.contains(option); }
    /// The last value that was given.
    std::optional<std::string> value(std::string_view option) const;
    std::vector<std::string> values(std::string_view option) const;
    /// A whole number that is not negative; fails for any other text.
    Result<std::optional<int>> number(std::string_view option) const;
    /// "5" and "5m" are minutes, "30s" seconds, "2h" hours; fails for any other text.
    Result<std::optional<std::chrono::seconds>> time(std::string_view option) const;

private:
    friend class ArgumentParser;
    std::multimap<std::string, std::string, std::less<>> m_values;
};

/// Options that every command takes.
const std::vector<Option>& commonOptions();

/// Reads a command line; `words` are without the program's name. Options stand anywhere, "--name value" or
/// "--name=value"; what follows "--" is an operand. Fails with a sentence for a person.
Result<Arguments> parseArguments(const std::vector<std::string>& words, const std::vector<Syntax>& syntaxes);

/// The help of all commands, or of those whose name begins with the word.
std::string helpText(const std::vector<Syntax>& syntaxes, std::string_view word = {});

} // namespace lodestar
