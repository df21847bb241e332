#include "platform/qt/layout_tags.h"

#include <algorithm>

namespace vorbano {

namespace {

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\n");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\n") - first + 1);
}

/// What stands between the braces, as a tag; none for a comment.
std::optional<LayoutTag> tagOf(std::string_view content) {
    content = trimmed(content);
    if (content.empty()) return LayoutTag{};
    LayoutTag tag;
    switch (content.front()) {
        case '!':
            return std::nullopt;
        case '#':
            tag.kind = LayoutTag::Kind::open;
            break;
        case '^':
            tag.kind = LayoutTag::Kind::openInverted;
            break;
        case '/':
            tag.kind = LayoutTag::Kind::close;
            break;
        default:
            tag.name = std::string(content);
            return tag;
    }
    tag.name = std::string(trimmed(content.substr(1)));
    return tag;
}

/// Names are field names: no blanks, and none of the signs that would mean an unescaped value, a partial or other
/// braces.
bool isName(std::string_view name) {
    return !name.empty() && name.find_first_of(" \t\n{}&>=#^/!\"'<") == std::string_view::npos;
}

std::string withBreaks(std::string_view text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text.substr(at, 2) == "\\n") {
            result += '\n';
            ++at;
        } else {
            result += text[at];
        }
    }
    return result;
}

}  // namespace

TagScan scanTags(std::string_view text) {
    TagScan scan;
    std::vector<LayoutTag> open;
    const auto fail = [&](std::string what, int line) {
        scan.mistake = std::move(what);
        scan.mistakeLine = line;
        return scan;
    };
    int line = 0;
    std::size_t from = 0;
    for (std::size_t at = text.find("{{"); at != std::string_view::npos; at = text.find("{{", from)) {
        line += static_cast<int>(std::count(text.begin() + static_cast<std::ptrdiff_t>(from),
                                            text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
        const auto end = text.find("}}", at);
        if (end == std::string_view::npos) return fail("manca la chiusura }} del segnaposto", line);
        auto tag = tagOf(text.substr(at + 2, end - at - 2));
        const int tagLine = line;
        line += static_cast<int>(std::count(text.begin() + static_cast<std::ptrdiff_t>(at),
                                            text.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
        from = end + 2;
        if (!tag) continue;
        tag->line = tagLine;
        if (!isName(tag->name)) return fail("segnaposto non valido: {{" + tag->name + "}}", tagLine);
        if (tag->kind == LayoutTag::Kind::close) {
            if (open.empty() || open.back().name != tag->name) {
                return fail("{{/" + tag->name + "}} non chiude nessuna sezione aperta", tagLine);
            }
            open.pop_back();
        } else if (tag->kind != LayoutTag::Kind::value) {
            open.push_back(*tag);
        }
        scan.tags.push_back(std::move(*tag));
    }
    if (!open.empty()) return fail("la sezione {{#" + open.back().name + "}} non è chiusa", open.back().line);
    return scan;
}

std::optional<TextTemplate> TextTemplate::read(std::string_view text) {
    TextTemplate result;
    text = trimmed(text);
    while (!text.empty()) {
        const auto at = text.find("{{");
        if (at == std::string_view::npos) {
            result.parts.push_back({withBreaks(text), {}});
            break;
        }
        const auto end = text.find("}}", at);
        if (end == std::string_view::npos) return std::nullopt;
        const std::string_view name = trimmed(text.substr(at + 2, end - at - 2));
        if (!isName(name)) return std::nullopt;
        result.parts.push_back({withBreaks(text.substr(0, at)), std::string(name)});
        text.remove_prefix(end + 2);
    }
    return result;
}

}  // namespace vorbano
