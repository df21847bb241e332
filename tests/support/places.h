#pragma once

// A small list of places in memory, as Comuni.mdb has it: sorted by name, then by code.

#include <string>
#include <vector>

#include "platform/memory_database.h"

namespace vorbano::test {

[[nodiscard]] inline std::vector<TableInfo> placeTables() {
    return {{"Comuni",
             {{"COMU_DESCR", ColumnType::text},
              {"COMU_PROV", ColumnType::text},
              {"COMU_COD", ColumnType::text},
              {"ATTIVO", ColumnType::whole}}},
            {"Stati",
             {{"STATI_DESCR", ColumnType::text},
              {"STATI_PROV", ColumnType::text},
              {"STATI_COD", ColumnType::text},
              {"ATTIVO", ColumnType::whole}}}};
}

inline void addComune(Database& places, const char* name, const char* province, const char* code, bool inForce = true) {
    places
        .append("Comuni", Row()
                              .setText("COMU_DESCR", name)
                              .setText("COMU_PROV", province)
                              .setText("COMU_COD", code)
                              .setWhole("ATTIVO", inForce ? 1 : 0))
        .ignore();
}
inline void addStato(Database& places, const char* name, const char* code) {
    places
        .append("Stati", Row()
                             .setText("STATI_DESCR", name)
                             .setText("STATI_PROV", "EE")
                             .setText("STATI_COD", code)
                             .setWhole("ATTIVO", 1))
        .ignore();
}

/// A dozen places that tell each other apart.
inline void fillPlaces(Database& places) {
    addComune(places, "ABBADIA", "CO", "A002", false);
    addComune(places, "ABBADIA", "TO", "A003", false);
    addComune(places, "CANTU'", "CO", "B639");
    addComune(places, "CASTRO", "BG", "C336", false);
    addComune(places, "CASTRO", "LE", "M261");
    addComune(places, "MILANO", "MI", "F205");
    addComune(places, "ROMA", "RM", "H501");
    addComune(places, "ROMAGNANO SESIA", "NO", "H502");
    addComune(places, "ROMANA", "SS", "H507");
    addStato(places, "ALBANIA", "Z100");
    addStato(places, "FRANCIA", "Z110");
    addStato(places, "PERU'", "Z611");
}

}  // namespace vorbano::test
