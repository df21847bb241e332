#include "platform/qt/html_text.h"

#include <kainjow/mustache.hpp>
#include <set>

#include "platform/qt/layout_reader.h"

namespace vorbano {

namespace {

using kainjow::mustache::data;

/// The queries whose sections are open around a tag; nullptr for a section that hangs on a field.
using OpenSections = std::vector<const QueryResult*>;

const QueryResult* queryNamed(const LayoutData& all, const std::string& name) {
    return name.find('.') == std::string::npos ? all.find(name) : nullptr;
}

bool isField(const LayoutData& all, const OpenSections& open, const std::string& name) {
    const auto point = name.find('.');
    if (point != std::string::npos) {
        const QueryResult* query = all.find(name.substr(0, point));
        return query != nullptr && query->single() && query->column(name.substr(point + 1)) >= 0;
    }
    for (const QueryResult* query : open) {
        if (query != nullptr && query->column(name) >= 0) return true;
    }
    return false;
}

Result<> checkTags(const HtmlSection& section, const LayoutData& all) {
    OpenSections open;
    for (const LayoutTag& tag : section.tags) {
        if (tag.kind == LayoutTag::Kind::close) {
            open.pop_back();
            continue;
        }
        const QueryResult* query = tag.kind == LayoutTag::Kind::value ? nullptr : queryNamed(all, tag.name);
        if (query == nullptr && !isField(all, open, tag.name)) {
            return layoutError(section.lines[static_cast<std::size_t>(tag.line)],
                               "campo sconosciuto: {{" + tag.name + "}}");
        }
        // Inside "{{^query}}" there is no row whose fields could be named.
        if (tag.kind != LayoutTag::Kind::value) open.push_back(tag.kind == LayoutTag::Kind::open ? query : nullptr);
    }
    return {};
}

/// An empty value is "nothing", so that a section that hangs on it stays shut.
data valueOf(std::string_view text) { return text.empty() ? data(false) : data(std::string(text)); }

data rowOf(const QueryResult& result, int row) {
    data object;
    for (std::size_t at = 0; at < result.columns().size(); ++at) {
        object.set(result.columns()[at], valueOf(result.cell(row, static_cast<int>(at))));
    }
    return object;
}

data dataOf(const QueryResult& result) {
    if (result.single()) return result.rows() > 0 ? rowOf(result, 0) : data(false);
    data list(data::type::list);
    for (int row = 0; row < result.rows(); ++row) list << rowOf(result, row);
    return list;
}

/// Only what the tags of the section name is handed over: a long list that stands in a table stays where it is.
data namedData(const HtmlSection& section, const LayoutData& all) {
    std::set<std::string> names;
    for (const LayoutTag& tag : section.tags) names.insert(tag.name.substr(0, tag.name.find('.')));
    data root;
    for (const std::string& name : names) {
        if (const QueryResult* query = all.find(name)) root.set(name, dataOf(*query));
    }
    return root;
}

}  // namespace

Result<std::string> htmlText(const HtmlSection& section, const LayoutData& all) {
    if (Result<> checked = checkTags(section, all); !checked) return checked.error();
    kainjow::mustache::mustache text(section.text);
    const Origin origin = section.lines.empty() ? Origin{} : section.lines.front();
    if (!text.is_valid()) return layoutError(origin, "segnaposti non validi: " + text.error_message());
    const data root = namedData(section, all);
    kainjow::mustache::context<std::string> context;
    context.push(&root);
    return text.render(context);
}

}  // namespace vorbano
