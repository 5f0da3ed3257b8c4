// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Storyboard.h"

namespace lodestar
{

Storyboard& Storyboard::main()
{
    static Storyboard storyboard;
    return storyboard;
}

std::shared_ptr<ViewController> Storyboard::instantiate(std::string_view identifier, std::any input) const
{
    const auto found = m_scenes.find(identifier);
    if (found == m_scenes.end()) {
        qFatal("The storyboard has no scene %s", std::string(identifier).c_str());
    }
    std::shared_ptr<ViewController> controller = found->second.factory(std::move(input));
    controller->setScene(found->second.file);
    return controller;
}

} // namespace lodestar
