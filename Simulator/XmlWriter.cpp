// SPDX-License-Identifier: Apache-2.0
#include "Simulator/XmlWriter.h"

namespace lodestar::simulator
{

void XmlWriter::open(std::string name, const Attributes& attributes)
{
    startTag(name, attributes);
    m_out += '>';
    m_names.push_back(std::move(name));
}

void XmlWriter::close()
{
    const std::string name = std::move(m_names.back());
    m_names.pop_back();
    m_out += "</" + name + ">";
}

void XmlWriter::text(std::string_view name, std::string_view value, const Attributes& attributes)
{
    startTag(name, attributes);
    m_out += '>';
    escaped(value);
    m_out.append("</").append(name).append(">");
}

void XmlWriter::textIfAny(std::string_view name, const std::optional<std::string>& value)
{
    if (value) {
        text(name, *value);
    }
}

void XmlWriter::empty(std::string_view name, const Attributes& attributes)
{
    startTag(name, attributes);
    m_out += "/>";
}

void XmlWriter::raw(std::string_view markup)
{
    m_out += markup;
}

void XmlWriter::startTag(std::string_view name, const Attributes& attributes)
{
    m_out.append("<").append(name);
    for (const auto& [key, value] : attributes) {
        m_out.append(" ").append(key).append("=\"");
        escaped(value);
        m_out += '"';
    }
}

void XmlWriter::escaped(std::string_view value)
{
    for (const char c : value) {
        switch (c) {
        case '&':
            m_out += "&amp;";
            break;
        case '<':
            m_out += "&lt;";
            break;
        case '>':
            m_out += "&gt;";
            break;
        case '"':
            m_out += "&quot;";
            break;
        default:
            m_out += c;
        }
    }
}

} // namespace lodestar::simulator
