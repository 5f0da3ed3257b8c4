// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/ObjectScenes.h"

#include "Inventory/Feed.h"
#include "Views/Common/Scenes.h"

namespace lodestar
{

void openObject(const ViewController& from, const CorvelRef& corvel, std::string_view type, const XMLElement& object)
{
    if (type == ObjectType::ManagedSystem) {
        openScene(from, Scenes::managedSystemInfo, object);
    } else if (type == ObjectType::LogicalPartition) {
        openScene(from, Scenes::logicalPartitionsDetail, object);
    } else if (type == ObjectType::VirtualIOServer) {
        openScene(from, Scenes::viosDetail, object);
    } else if (type == ObjectType::ServiceableEvent) {
        openScene(from, Scenes::serviceableEventsDetail, object);
    } else if (type == ObjectType::Group) {
        openScene(from, Scenes::resourceGroupsView, corvel);
    }
}

} // namespace lodestar
