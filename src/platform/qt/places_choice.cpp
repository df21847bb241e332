#include "platform/qt/places_choice.h"

#include "platform/qt/installation.h"
#include "platform/qt/older_places.h"
#include "platform/qt/sqlite_database.h"

namespace vorbano {

namespace {

/// Both tables are there, and there is a municipality to be found.
bool canBeUsed(Database& places) {
    const auto municipalities = places.count("Comuni");
    return municipalities && *municipalities > 0 && places.count("Stati");
}

void tellOfDeliveredPlaces(Desktop& desktop) {
    desktop.tell(
        {"Il file Stampe/Comuni.mdb, l'elenco dei comuni e degli stati per il codice fiscale, viene da "
         "un'installazione precedente e su questo computer non può essere letto: manca il driver di Microsoft "
         "Access, o il file è danneggiato.\n\n"
         "Al suo posto il programma usa l'elenco consegnato, che ha messo nel file "
         "Stampe/Comuni consegnati.mdb. Nel file precedente niente è stato cambiato.",
         "Vorbano", Icon::information});
}

}  // namespace

std::unique_ptr<Database> openOlderPlaces(const std::string& path) { return std::make_unique<OlderPlaces>(path); }

std::unique_ptr<Database> choosePlaces(const std::string& root, Desktop& desktop, const OpensOlder& opensOlder) {
    const std::string path = root + "/Stampe/Comuni.mdb";
    if (databaseKind(path) != DatabaseKind::older) return std::make_unique<SqliteDatabase>(path);
    if (auto older = opensOlder(path); canBeUsed(*older)) return older;
    const auto delivered = layDeliveredPlaces(root);
    if (!delivered) return std::make_unique<SqliteDatabase>(path);
    if (delivered->isNew) tellOfDeliveredPlaces(desktop);
    return std::make_unique<SqliteDatabase>(delivered->path);
}

}  // namespace vorbano
