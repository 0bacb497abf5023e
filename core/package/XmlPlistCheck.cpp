#include "core/package/XmlPlistCheck.h"

#include <cstdint>

namespace orrery {
namespace {

constexpr auto npos = std::string_view::npos;

// The position of `what` at or after `from`, stepping over quoted attribute values when
// `inTag` (a '>' inside quotes does not end a tag).
std::size_t find(std::string_view text, std::string_view what, std::size_t from, bool inTag) {
    for (std::size_t i = from; i < text.size(); ++i) {
        if (inTag && text[i] == '"') {
            i = text.find('"', i + 1);
            if (i == npos)
                return npos;
            continue;
        }
        if (text.compare(i, what.size(), what) == 0)
            return i;
    }
    return npos;
}

// The first of `chars` at or after `from`, outside quoted attribute values.
std::size_t findAnyOf(std::string_view text, std::string_view chars, std::size_t from) {
    for (std::size_t i = from; i < text.size(); ++i) {
        if (text[i] == '"') {
            i = text.find('"', i + 1);
            if (i == npos)
                return npos;
            continue;
        }
        if (chars.find(text[i]) != npos)
            return i;
    }
    return npos;
}

bool startsWith(std::string_view text, std::size_t at, std::string_view prefix) {
    return text.compare(at, prefix.size(), prefix) == 0;
}

} // namespace

bool checkXmlPropertyList(std::string_view bytes, const ParseLimits& limits, std::string& error) {
    if (bytes.size() > limits.maxBytes) {
        error = "the file is larger than " + std::to_string(limits.maxBytes) + " bytes";
        return false;
    }
    const auto unterminated = [&](std::string_view what) {
        error = "the XML property list is damaged: " + std::string(what) + " is not closed";
        return false;
    };
    // The outermost <plist> element wraps the property list's own nesting.
    constexpr std::uint32_t maxDepth = kMaxNestingDepth + 1;
    std::uint32_t depth = 0;
    std::uint64_t elements = 0;
    std::size_t pos = 0;
    while ((pos = bytes.find('<', pos)) != npos) {
        std::size_t end = npos;
        if (startsWith(bytes, pos, "<?")) {
            if ((end = find(bytes, "?>", pos + 2, true)) == npos)
                return unterminated("a processing instruction");
            pos = end + 2;
        } else if (startsWith(bytes, pos, "<!--")) {
            if ((end = find(bytes, "-->", pos + 4, false)) == npos)
                return unterminated("a comment");
            pos = end + 3;
        } else if (startsWith(bytes, pos, "<![CDATA[")) {
            if ((end = find(bytes, "]]>", pos + 9, false)) == npos)
                return unterminated("a CDATA section");
            pos = end + 3;
        } else if (startsWith(bytes, pos, "<!")) {
            // A document type, possibly with an internal subset in brackets.
            std::size_t from = findAnyOf(bytes, "[>", pos + 2);
            if (from != npos && bytes[from] == '[')
                from = find(bytes, "]", from + 1, true);
            if (from == npos || (end = find(bytes, ">", from, true)) == npos)
                return unterminated("the document type");
            pos = end + 1;
        } else if (startsWith(bytes, pos, "</")) {
            if ((end = find(bytes, ">", pos + 2, true)) == npos)
                return unterminated("a closing tag");
            if (depth == 0) {
                error = "the XML property list is damaged: a closing tag has no opening tag";
                return false;
            }
            --depth;
            pos = end + 1;
        } else {
            if ((end = find(bytes, ">", pos + 1, true)) == npos)
                return unterminated("a tag");
            if (++elements > limits.maxNodes) {
                error = "the property list holds more than " + std::to_string(limits.maxNodes) +
                        " elements";
                return false;
            }
            if (bytes[end - 1] != '/' && ++depth > maxDepth) {
                error = "the property list is nested deeper than " +
                        std::to_string(kMaxNestingDepth) + " levels";
                return false;
            }
            pos = end + 1;
        }
    }
    return true;
}

} // namespace orrery
