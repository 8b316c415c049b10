// Strings and names of form files in the system's code page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace rux {

inline constexpr std::string_view Utf8Signature = "\xEF\xBB\xBF";

/// A character given by its number: `#233`, `#$E9`.
struct TFormCharCode {
    /// Length of its text; 1 or 2 when the digits are missing, which stands for no character.
    std::size_t Length = 0;
    bool HasDigits = false;
    /// A UTF-16 unit; larger values mean that there is no such unit.
    std::uint32_t Unit = 0;
};
/// `text` begins with `#`.
TFormCharCode ReadFormCharCode(std::string_view text);

/// Puts a string value together from the chunks of the file.
///
/// Numbered characters are UTF-16 units and go into the code page only when all adjoining ones are there, so
/// that the halves of a pair meet even where the line was broken between them.
class TFormText {
 public:
    /// With `utf8`, bytes between quotes are UTF-8; else they are the code page's already.
    explicit TFormText(bool utf8) : FUtf8(utf8) {}

    /// Adds quoted pieces and numbered characters as they stand in the file, well formed.
    void AddChunk(std::string_view chunk);
    /// The whole text.
    std::string Take();

 private:
    void AddRaw(std::string_view bytes);
    void AddCode(const TFormCharCode& code);
    void Flush();

    bool FUtf8;
    std::string FText;
    std::u16string FPending;
};

/// A name as it stands in the file; see TFormText for `utf8`.
std::string FormNameText(std::string_view name, bool utf8);

}  // namespace rux
