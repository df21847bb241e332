#pragma once

#include <string_view>

#include "platform/control.h"
#include "records/station_records.h"

namespace vorbano {

/// The fields of one person, by their names.
struct PersonNames {
    std::string_view Cognome, Nome, Indirizzo, Qualifica, SiNo, CodFisc, Onorario;
};
inline constexpr PersonNames memberNames = {"txtComponente", "txtNome", "txtIndirizzo", "txtCompo",
                                            "txtSiNo",       "txtFisc", "txtImporto"};
inline constexpr PersonNames addedNames = {"Text2", "Text3", "Text6", "Text4", "Text5", "Text9", "Text8"};
inline constexpr PersonNames removedNames = {"Text10", "Text11", "Text14", "Text12", "Text13", "Text17", "Text16"};

/// The fields of one person in a panel, each as wide as the record has it.
struct PersonFields {
    TextBox Cognome;
    TextBox Nome;
    TextBox Indirizzo;
    TextBox Qualifica;
    TextBox SiNo;
    TextBox CodFisc;
    TextBox Onorario;

    PersonFields(Container& panel, const PersonNames& names);

    [[nodiscard]] StationPerson person() const;
    void show(const StationPerson& person);
    void clear();
    void lock();
};

/// What a field of money holds, to cents; 0 when it is no number.
[[nodiscard]] Currency feeIn(const TextBox& field);

}  // namespace vorbano
