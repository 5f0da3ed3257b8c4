// SPDX-License-Identifier: Apache-2.0
#include "Fleet/WatchVoice.h"

#include "Fleet/WatchSurroundings.h"

#include <optional>
#include <utility>

namespace lodestar
{
namespace
{

constexpr auto nightName = "watch.night";

} // namespace

void WatchVoice::setWords(Words words, TestWords testWords)
{
    m_words = std::move(words);
    m_testWords = std::move(testWords);
}

void WatchVoice::sendTest() const
{
    if (m_testWords) {
        MessageService::standard().show(m_testWords());
    }
}

void WatchVoice::readNight()
{
    m_night = WatchNight::ofText(m_stage->setting(nightName).value_or(""), m_stage->wallNow());
}

void WatchVoice::keepNight()
{
    m_stage->setSetting(nightName, m_night.empty() ? std::nullopt : std::optional(m_night.text()));
}

void WatchVoice::clearNight()
{
    if (hasNight()) {
        m_night.clear();
        keepNight();
    }
}

void WatchVoice::keepOnly(const std::set<std::string>& addresses)
{
    if (hasNight()) {
        m_night.keepOnly(addresses);
        keepNight();
    }
}

void WatchVoice::tell(const WatchNews& news, const Findings& findings, bool isQuiet)
{
    if (!isQuiet && !hasNight()) {
        if (!news.empty()) {
            show(news);
        }
        return;
    }
    if (!news.worse.empty()) {
        m_night.add(news.worse);
        keepNight();
    }
    if (!isQuiet) {
        tellNight(findings);
    }
}

void WatchVoice::tellNight(const Findings& findings)
{
    if (hasNight()) {
        show(m_night.sum(findings));
        keepNight();
    }
}

void WatchVoice::show(const WatchNews& news) const
{
    if (m_words) {
        MessageService::standard().show(m_words(news, m_stage->requiresPasscode()));
    }
}

} // namespace lodestar
