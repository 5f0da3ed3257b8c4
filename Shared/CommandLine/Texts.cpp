// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Texts.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace lodestar
{
namespace
{

constexpr std::string_view english = "en";

const TranslatedLanguage* languageOf(std::string_view code)
{
    const auto& all = translatedLanguages();
    const auto found = std::ranges::find(all, code, &TranslatedLanguage::code);
    return found != all.end() ? &*found : nullptr;
}

const TranslatedLanguage*& spoken()
{
    static const TranslatedLanguage* language = languageOf(english);
    return language;
}

std::tuple<std::string_view, std::string_view, std::string_view> keyOf(const auto& text)
{
    return {text.context, text.source, text.comment};
}

/// The text's forms in the language that is spoken; empty when there are none.
std::string_view formsOf(const Text& text)
{
    if (spoken() == nullptr) {
        return {};
    }
    const TranslatedText* const end = spoken()->texts + spoken()->count;
    const TranslatedText* const found =
        std::lower_bound(spoken()->texts, end, text,
                         [](const TranslatedText& each, const Text& sought) { return keyOf(each) < keyOf(sought); });
    return found != end && keyOf(*found) == keyOf(text) ? found->forms : std::string_view();
}

/// Which form the language has for the number: the rules of CLDR for whole numbers.
std::size_t formFor(std::string_view language, std::size_t number)
{
    if (language == "ja") {
        return 0;
    }
    if (language == "fr") {
        return number < 2 ? 0 : 1;
    }
    if (language != "ar") {
        return number == 1 ? 0 : 1;
    }
    const std::size_t rest = number % 100;
    return number < 3 ? number : rest >= 3 && rest <= 10 ? 3 : rest >= 11 ? 4 : 5;
}

std::string_view formAt(std::string_view forms, std::size_t index)
{
    for (; index > 0 && forms.find(betweenForms) != std::string_view::npos; --index) {
        forms.remove_prefix(forms.find(betweenForms) + 1);
    }
    return forms.substr(0, forms.find(betweenForms));
}

/// All places at once: a value may itself look like a place.
std::string filled(std::string_view pattern, const std::string& number, std::initializer_list<std::string_view> values)
{
    std::string text;
    while (!pattern.empty()) {
        const std::size_t place = pattern.find('%');
        text += pattern.substr(0, place);
        if (place == std::string_view::npos) {
            break;
        }
        pattern.remove_prefix(place + 1);
        const std::size_t digit = pattern.empty() ? 0 : static_cast<std::size_t>(pattern.front()) - '1';
        if (!number.empty() && (pattern.starts_with("Ln") || pattern.starts_with('n'))) {
            pattern.remove_prefix(pattern.front() == 'L' ? 2 : 1);
            text += number;
        } else if (!pattern.empty() && digit < values.size()) {
            pattern.remove_prefix(1);
            text += values.begin()[digit];
        } else {
            text += '%';
        }
    }
    return text;
}

} // namespace

void Texts::speak(std::string_view language)
{
    const TranslatedLanguage* const known = languageOf(language);
    spoken() = known != nullptr ? known : languageOf(english);
}

std::string_view Texts::spokenLanguage()
{
    return spoken() != nullptr ? spoken()->code : english;
}

std::string Texts::languageOfEnvironment()
{
    // The first that is set decides, even when it names no language of ours.
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            const std::string_view locale = value;
            return std::string(locale.substr(0, locale.find_first_of("_.@")));
        }
    }
    return {};
}

std::string Texts::say(const Text& text, std::initializer_list<std::string_view> values)
{
    const std::string_view translated = formsOf(text);
    return filled(translated.empty() ? text.source : translated, {}, values);
}

std::string Texts::count(const Text& text, std::size_t number, std::initializer_list<std::string_view> values)
{
    const std::string_view forms = formsOf(text);
    const std::string_view form =
        spoken() != nullptr ? formAt(forms, formFor(spoken()->code, number)) : std::string_view();
    return filled(form.empty() ? text.source : form, std::to_string(number), values);
}

} // namespace lodestar
