// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/SceneInputs.h"

#include "Kit/Core/NavigationController.h"
#include "Kit/Core/Storyboard.h"
#include "Views/Common/CorvelReceiving.h"

#include <utility>

namespace lodestar
{

bool openScene(const ViewController& from, std::string_view identifier, SceneInputs inputs)
{
    auto scene = Storyboard::main().instantiateViewController(identifier);
    if (!scene || from.navigationController() == nullptr) {
        return false;
    }
    if (auto* const receiver = dynamic_cast<CorvelReceiving*>(scene.get())) {
        receiver->setCorvel(std::move(inputs.corvel));
    }
    if (auto* const receiver = dynamic_cast<RootXMLReceiving*>(scene.get())) {
        receiver->setRootXML(std::move(inputs.rootXML));
    }
    if (auto* const receiver = dynamic_cast<PartitionNarrowing*>(scene.get())) {
        receiver->setPartitionName(std::move(inputs.partitionName));
    }
    if (auto* const receiver = dynamic_cast<PerformanceReceiving*>(scene.get())) {
        receiver->setSysName(std::move(inputs.sysName));
        receiver->setSystemID(std::move(inputs.systemID));
    }
    from.navigationController()->pushViewController(std::move(scene), Animated::Yes);
    return true;
}

} // namespace lodestar
