#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vorbano {

/// A number mask in the form known from the rest of the program: "##,##0.00" groups thousands and shows two decimals,
/// "0.00##" two to four, "#,##0;-" shows "-" for a zero and "#,##0;" nothing. In the mask "," groups and "." stands
/// before the decimals; the number is shown in the Italian form, with "." and ",".
class Mask {
  public:
    /// No value when the text is no mask.
    [[nodiscard]] static std::optional<Mask> read(std::string_view text);

    /// A number in units of 1/10,000, half away from zero at the last decimal shown.
    [[nodiscard]] std::string shown(std::int64_t units) const;

  private:
    bool grouped_ = false;
    int wholeDigits_ = 0;
    int leastDecimals_ = 0;
    int mostDecimals_ = 0;
    std::optional<std::string> zero_;
};

/// "##,##0.00" and "0": amounts and whole numbers where a layout says nothing else.
[[nodiscard]] const Mask& amountMask();
[[nodiscard]] const Mask& wholeMask();

}  // namespace vorbano
