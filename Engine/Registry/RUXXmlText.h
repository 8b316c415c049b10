// The characters of an XML file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace rux {

/// What a file holds in UTF-16, and how far it could be understood.
struct TXmlText {
    std::u16string Text;
    /// What is wrong behind the last unit of Text; empty if nothing is.
    std::string Fault;
};

/// By the byte order mark, else by the encoding that the declaration names, else UTF-8.
TXmlText DecodeXml(std::string_view bytes);

/// What XML allows to stand in a file.
bool IsXmlChar(char32_t c);
void AppendUtf16(std::u16string& text, char32_t c);

}  // namespace rux
