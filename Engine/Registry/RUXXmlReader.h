// Reads an XML file of definitions: its elements and their attributes.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "rtl/Exceptions.h"

namespace rux {

/// "<file>:<line>:<column>: <what>", both counted from 1, columns in characters.
using EXMLError = TNamedException<Exception, "EXMLError">;

/// Where in a file something stands.
class TXmlPlaces {
 public:
    TXmlPlaces(std::string_view name, std::u16string_view text) : FName(name), FText(text) {}
    /// Fails at the unit `at` of the text.
    [[noreturn]] void Fail(std::size_t at, std::string_view what) const;

 private:
    const std::string FName;
    const std::u16string_view FText;
};

/// As long as it is being visited.
struct TXmlElement {
    /// In the system's code page, as are the attributes; what that lacks is '?'.
    std::string Name;
    std::vector<std::pair<std::string, std::string>> Attributes;
    /// 1 for the document element.
    std::size_t Depth = 0;
    const TXmlPlaces& Places;
    /// Where it begins.
    std::size_t At = 0;

    /// The value of an attribute that must be there; case counts. Raises EXMLError.
    const std::string& Required(std::string_view attribute) const;
};

/// Calls `visit` with each element where it begins, in the order of the file; a file without any is no error.
/// `name` is told in errors. UTF-8, UTF-16 behind a byte order mark, and the system's code page where the
/// file declares GB2312, GBK or windows-936. Character data is checked and dropped; entities beyond the five
/// predefined ones are unknown. Raises EXMLError for what is no XML, maybe after elements have been visited.
void ReadXml(std::string_view name, std::string_view bytes,
             const std::function<void(const TXmlElement&)>& visit);

}  // namespace rux
