#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorbano {

/// A mustache tag: what it is, the name in it, and on which line of the text it stands (from 0).
struct LayoutTag {
    enum class Kind : unsigned char { value, open, openInverted, close };
    Kind kind = Kind::value;
    std::string name;
    int line = 0;
};

/// The tags of a text in their order; comments are left out. In `mistake` what is wrong, in Italian, and where.
struct TagScan {
    std::vector<LayoutTag> tags;
    std::string mistake;
    int mistakeLine = 0;
};
[[nodiscard]] TagScan scanTags(std::string_view text);

/// A line of text with values in it: "dal {{PrimoDal}} al {{PrimoAl}}". "\n" in it is a line break. It is filled in
/// without a template engine, as this is done for every cell of a long table.
struct TextTemplate {
    struct Part {
        std::string literal;  ///< stands before the value
        std::string name;     ///< "" at the end of the text
    };
    std::vector<Part> parts;

    /// No value when a tag is not closed, or is anything but a value.
    [[nodiscard]] static std::optional<TextTemplate> read(std::string_view text);
    [[nodiscard]] bool empty() const { return parts.empty(); }
};

}  // namespace vorbano
