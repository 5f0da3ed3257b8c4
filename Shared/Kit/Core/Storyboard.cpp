// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Storyboard.h"

#include <utility>

namespace lodestar
{

Storyboard& Storyboard::main()
{
    static Storyboard storyboard;
    return storyboard;
}

void Storyboard::registerScene(std::string identifier, Factory factory, QUrl scene)
{
    m_scenes.insert_or_assign(std::move(identifier), Scene{std::move(factory), std::move(scene)});
}

bool Storyboard::hasScene(std::string_view identifier) const
{
    return m_scenes.find(identifier) != m_scenes.end();
}

std::shared_ptr<ViewController> Storyboard::instantiateViewController(std::string_view identifier) const
{
    const auto found = m_scenes.find(identifier);
    if (found == m_scenes.end()) {
        return nullptr;
    }
    std::shared_ptr<ViewController> controller = found->second.factory();
    controller->setScene(found->second.file);
    return controller;
}

} // namespace lodestar
