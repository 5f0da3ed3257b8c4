// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A text for people, in English. The context is where its translations stand: that of the screen that says the same,
/// or "CommandLine".
struct Text {
    std::string_view context;
    std::string_view source;
    std::string_view comment = {}; ///< tells it from another text of the same words
};

/// The tool that collects texts knows these names; a TEXTS has plural forms and shows its number as %Ln.
#define TEXT(context, source) (::lodestar::Text{context, source})
#define TEXTS(context, source) (::lodestar::Text{context, source})
#define COMMENTED_TEXT(context, source, comment) (::lodestar::Text{context, source, comment})

/// The program's sentences in the language of the person. What a script reads is English, whatever the language is.
namespace Texts
{

/// Says everything in this language from now on; in English when there are no texts in it.
void speak(std::string_view language);
std::string_view spokenLanguage();
/// The language that the environment asks for, as "de"; empty for none.
std::string languageOfEnvironment();

/// The text with the values in the places of %1, %2 and so on.
std::string say(const Text& text, std::initializer_list<std::string_view> values = {});
/// The text's form for the number.
std::string count(const Text& text, std::size_t number, std::initializer_list<std::string_view> values = {});

} // namespace Texts

/// What was translated of a text: its forms, one after the other with this between them.
inline constexpr char betweenForms = '\x1f';
struct TranslatedText {
    std::string_view context;
    std::string_view source;
    std::string_view comment;
    std::string_view forms;
};
struct TranslatedLanguage {
    std::string_view code;
    const TranslatedText* texts; ///< in the order of context, source and comment
    std::size_t count;
};
/// Made of the files of Resources/Languages.
const std::vector<TranslatedLanguage>& translatedLanguages();

} // namespace lodestar
