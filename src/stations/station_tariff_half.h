#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/form.h"
#include "records/station_tariff_records.h"
#include "screens/workplace.h"

namespace vorbano {

/// An amount and the box that opens it, by their names.
struct TariffAmountNames {
    std::string_view box;
    std::string_view field;
};

/// In what the two halves of the tariff screen differ: names, files, and how many amounts a row of fees has. The quotas
/// are always two, of the president and of all others: the first and the last amount of a row.
template <std::size_t Fees>
struct TariffHalfNames {
    std::string_view frame;
    std::string_view quotaFrame;
    std::string_view type;
    std::string_view all;
    std::array<TariffAmountNames, Fees + 2> amounts;  ///< fees, then quotas
    std::string_view save;
    std::string_view feeFile;
    std::string_view quotaFile;
};
inline constexpr TariffHalfNames<3> normalTariffNames = {
    "Frame1",
    "Frame4",
    "Combo1",
    "Check7",
    {{{"Check1", "txtPresOne"},
      {"Check2", "txtSegrOne"},
      {"Check3", "txtScrutOne"},
      {"Check11", "txtMagPres"},
      {"Check12", "txtMagSesc"}}},
    "cmdSalva",
    tarsegFile,
    tarmagFile,
};
inline constexpr TariffHalfNames<2> specialTariffNames = {
    "Frame3",
    "Frame5",
    "Combo2",
    "Check10",
    {{{"Check8", "txtPresSpecOne"},
      {"Check9", "txtScrutSpecOne"},
      {"Check13", "txtMagPresSp"},
      {"Check14", "txtMagSescSp"}}},
    "cmdSalva2",
    tarSpecFile,
    tarmagspFile,
};

/// One half of the tariff screen: the fees of normal or of special stations, with the quotas that the Stato bears. An
/// amount is open while its own box or the one for all is ticked; while any box is, the type stands fast and the half
/// can be saved.
template <std::size_t Fees>
class StationTariffHalf {
  public:
    static constexpr std::size_t amountCount = Fees + 2;

    Frame frame;
    Frame quotaFrame;
    ComboBox type;
    CheckBox all;
    std::array<CheckBox, amountCount> boxes;   ///< one for each amount: fees, then quotas
    std::array<TextBox, amountCount> amounts;  ///< in the same order
    Button save;

    /// `names` outlives the half.
    StationTariffHalf(Form& form, const TariffHalfNames<Fees>& names, const Workplace& workplace);

    /// A type was chosen: shows its rows, and asks whether what has no row is to be entered.
    void choose();
    /// The box for all was ticked or cleared.
    void openAll();
    /// Writes both rows, in place or behind the others, and closes what was open. A failure is told, and then
    /// everything stays open.
    void store();

  private:
    using Row = StationTariff<Fees>;
    using Search = Result<std::optional<FoundTariff<Fees>>>;

    void openOne(std::size_t at);
    void leaveAmount(TextBox& field);
    /// Fields, type and save command follow the boxes.
    void followBoxes();
    void lockAll();
    void lookUp();
    void show(std::size_t at, std::optional<Currency> amount);
    /// Nothing can be changed or saved when it is not known what the files hold.
    void forgetType();
    /// Takes a tick back when there is no type that it could be about.
    bool takenBack(CheckBox& box);
    bool ask(std::string_view question);
    [[nodiscard]] Search search(std::string_view path) const;
    /// Makes a file that is not there yet, and looks for nothing in it.
    [[nodiscard]] Search openOnly(std::string_view path) const;
    /// `fill` sets the amounts of the row of the chosen type, which holds what the file has.
    template <class Fill>
    [[nodiscard]] Result<> put(std::string_view path, Fill&& fill) const;
    /// What a field holds, to cents, which is then shown in it.
    Currency take(std::size_t at);
    [[nodiscard]] std::string chosen() const { return std::string(trim(type.text())); }
    /// A referendum has none: the Stato bears the whole fee.
    [[nodiscard]] bool hasQuota() const { return chosen() != "Referendum"; }

    const TariffHalfNames<Fees>& names_;
    Workplace desk_;
};

extern template class StationTariffHalf<3>;
extern template class StationTariffHalf<2>;

}  // namespace vorbano
