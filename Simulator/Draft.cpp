// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Draft.h"

#include <utility>

namespace lodestar::simulator
{

Response errorResponse(int status, const std::string& message)
{
    Response response =
        textResponse("application/xml", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><ErrorResponse><HTTPStatus>" +
                                            std::to_string(status) + "</HTTPStatus><Message>" + message +
                                            "</Message></ErrorResponse>");
    response.status = status;
    return response;
}

Response textResponse(const std::string& contentType, std::string text)
{
    Response response;
    response.headers = {{"Content-Type", contentType}, {"Cache-Control", "no-store"}};
    response.body = makeBody(std::move(text));
    return response;
}

Response logonResponse(const std::string& key)
{
    const std::string element =
        key.empty() ? "" : "<X-API-Session kxe=\"false\" kb=\"CUR\">" + key + "</X-API-Session>";
    return textResponse("application/vnd.ornis.varnex.web+xml; type=LogonResponse",
                        "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<LogonResponse "
                        "xmlns=\"urn:ornis:varnex:web:2012_10\" schemaVersion=\"V1_0\"><Metadata><Atom/></Metadata>" +
                            element + "</LogonResponse>");
}

void Draft::replace(Response other)
{
    response = std::move(other);
    feedType.clear();
}

void Draft::replaceBody(BodyPtr body)
{
    response.body = std::move(body);
    feedType.clear();
}

void Draft::replacePacked(BodyPtr body)
{
    replaceBody(std::move(body));
    response.headers.emplace_back("Content-Encoding", "gzip");
}

void Draft::cut(std::uint64_t after, Ending ending)
{
    response.stopAfter = after;
    response.ending = ending;
    feedType.clear();
}

} // namespace lodestar::simulator
