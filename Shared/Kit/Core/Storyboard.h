// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/NavigationController.h"

#include <any>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace lodestar
{

struct NoInput {
};

/// A scene by its identifier, and the type of all that it is opened with.
template <typename Input = NoInput>
struct Scene {
    const char* identifier;
};

/// The table of scenes: identifier, controller factory, QML file. Screens reach each other by a Scene alone, so that
/// nothing includes upwards. A scene that the table lacks, or has under another type of input, ends the process. Main
/// thread.
class Storyboard
{
public:
    template <typename Input>
    using Factory = std::function<std::shared_ptr<ViewController>(Input)>;

    static Storyboard& main();

    template <typename Input>
    void registerScene(Scene<Input> scene, std::type_identity_t<Factory<Input>> factory, QUrl file)
    {
        m_scenes.insert_or_assign(scene.identifier, Entry{[factory = std::move(factory)](std::any input) {
                                                              return factory(std::any_cast<Input>(std::move(input)));
                                                          },
                                                          std::move(file)});
    }

    /// A fresh controller that has its input, its scene set.
    template <typename Input>
    std::shared_ptr<ViewController> instantiateViewController(Scene<Input> scene,
                                                              std::type_identity_t<Input> input) const
    {
        return instantiate(scene.identifier, std::move(input));
    }
    std::shared_ptr<ViewController> instantiateViewController(Scene<> scene) const
    {
        return instantiate(scene.identifier, NoInput());
    }
    /// The same as its own type; null when the scene's controller is of another type.
    template <typename Controller>
    std::shared_ptr<Controller> instantiate(Scene<> scene) const
    {
        return std::dynamic_pointer_cast<Controller>(instantiateViewController(scene));
    }

private:
    struct Entry {
        std::function<std::shared_ptr<ViewController>(std::any)> factory;
        QUrl file;
    };
    std::shared_ptr<ViewController> instantiate(std::string_view identifier, std::any input) const;

    std::map<std::string, Entry, std::less<>> m_scenes;
};

/// Opens a scene of the storyboard, animated, on the stack that `from` stands on. A screen on no stack, closed as a
/// rule, opens nothing.
template <typename Input>
void openScene(const ViewController& from, Scene<Input> scene, std::type_identity_t<Input> input)
{
    if (NavigationController* const stack = from.navigationController()) {
        stack->open(from, Storyboard::main().instantiateViewController(scene, std::move(input)));
    }
}
inline void openScene(const ViewController& from, Scene<> scene)
{
    openScene(from, scene, NoInput());
}

} // namespace lodestar
