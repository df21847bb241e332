#pragma once

#include <string>
#include <string_view>

#include "platform/control.h"
#include "records/station_files.h"
#include "screens/workplace.h"

namespace vorbano {

/// The fee of the tariff, put into a field as a proposal. A fee that the clerk has typed over it stays.
class FeeProposal {
  public:
    /// `kind` decides which file of tariffs is asked.
    FeeProposal(TextBox& field, StationKind kind, const Workplace& workplace)
        : field_(field), kind_(kind), desk_(workplace) {}

    /// The fee of the row `tariff` for the role, "Presidente" for one. A row that does not exist is told, and so is a
    /// failure of the disk; the field is empty then, unless something was typed.
    void propose(std::string_view tariff, std::string_view role);
    /// What the field holds from now on was not proposed.
    void forget() { proposed_.clear(); }

  private:
    TextBox& field_;
    StationKind kind_;
    Workplace desk_;
    std::string proposed_;
};

}  // namespace vorbano
