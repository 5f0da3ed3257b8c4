// SPDX-License-Identifier: Apache-2.0
#include "Fleet/TextFields.h"

#include <algorithm>

namespace lodestar
{

std::string escapedField(std::string_view text)
{
    std::string escaped;
    for (const char letter : text) {
        if (letter == '\\' || letter == '\n' || letter == '\t') {
            escaped += '\\';
        }
        escaped += letter == '\n' ? 'n' : letter == '\t' ? 't' : letter;
    }
    return escaped;
}

std::string unescapedField(std::string_view text)
{
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isEscape = text[at] == '\\' && at + 1 < text.size();
        const char letter = isEscape ? text[++at] : text[at];
        plain += !isEscape ? letter : letter == 'n' ? '\n' : letter == 't' ? '\t' : letter;
    }
    return plain;
}

std::string lineOfFields(const std::vector<std::string>& fields)
{
    std::string line;
    for (const std::string& field : fields) {
        line.append(escapedField(field)).append("\t");
    }
    if (!line.empty()) {
        line.pop_back();
    }
    return line + '\n';
}

std::vector<std::vector<std::string>> linesOfFields(std::string_view text)
{
    std::vector<std::vector<std::string>> lines;
    while (!text.empty()) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        std::vector<std::string>& fields = lines.emplace_back();
        while (true) {
            const std::size_t tab = line.find('\t');
            fields.push_back(unescapedField(line.substr(0, tab)));
            if (tab == std::string_view::npos) {
                break;
            }
            line.remove_prefix(tab + 1);
        }
    }
    return lines;
}

} // namespace lodestar
