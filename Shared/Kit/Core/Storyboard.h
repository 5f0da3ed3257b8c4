// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace lodestar
{

/// The table of scenes: identifier, controller factory and QML file. Screens reach each other by identifier only, so
/// that includes never go upwards. Main thread.
class Storyboard
{
public:
    using Factory = std::function<std::shared_ptr<ViewController>()>;

    static Storyboard& main();

    void registerScene(std::string identifier, Factory factory, QUrl scene);
    bool hasScene(std::string_view identifier) const;
    /// A new controller with its scene set; null for an unknown identifier.
    std::shared_ptr<ViewController> instantiateViewController(std::string_view identifier) const;

    /// A new controller of the given type; null also when the scene's controller has another type.
    template <typename Controller>
    std::shared_ptr<Controller> instantiate(std::string_view identifier) const
    {
        return std::dynamic_pointer_cast<Controller>(instantiateViewController(identifier));
    }

private:
    struct Scene {
        Factory factory;
        QUrl file;
    };
    std::map<std::string, Scene, std::less<>> m_scenes;
};

} // namespace lodestar
