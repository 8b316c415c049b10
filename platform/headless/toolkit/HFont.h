// Fonts, as far as form files and reads by name know them.
#pragma once

#include "platform/headless/toolkit/HStrings.h"

namespace rux {

/// A form file stores the height only; height and size are one value in two units.
class HFont : public HPersistent {
 public:
    using HPersistent::HPersistent;
    /// In pixels, negative for the height of the characters alone.
    int Height() const { return FHeight; }
    void SetHeight(int value) { FHeight = value; }
    /// In points at 96 dots per inch, negative for a positive height.
    int Size() const;
    void SetSize(int value);

 private:
    int FHeight = -11;
};

}  // namespace rux
