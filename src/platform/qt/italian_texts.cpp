#include "platform/qt/italian_texts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vorbano {

namespace {

struct Pair {
    std::string_view source;
    const char* italian;
};

constexpr std::array<Pair, 57> pairs{{
    // fields
    {"&Undo", "&Annulla"},
    {"&Redo", "&Ripeti"},
    {"Cu&t", "&Taglia"},
    {"&Copy", "&Copia"},
    {"&Paste", "&Incolla"},
    {"Delete", "Elimina"},
    {"&Delete", "&Elimina"},
    {"Select All", "Seleziona tutto"},
    // buttons
    {"OK", "OK"},
    {"&OK", "OK"},
    {"Cancel", "Annulla"},
    {"&Cancel", "Annulla"},
    {"&Yes", "Sì"},
    {"&No", "No"},
    {"Close", "Chiudi"},
    {"&Close", "Chiudi"},
    {"Save", "Salva"},
    {"&Save", "&Salva"},
    {"Open", "Apri"},
    {"&Open", "&Apri"},
    {"Help", "Aiuto"},
    {"Apply", "Applica"},
    {"Discard", "Non salvare"},
    {"Reset", "Ripristina"},
    // file dialog
    {"Look in:", "Cerca in:"},
    {"Save As", "Salva con nome"},
    {"Directory:", "Cartella:"},
    {"&Directory:", "&Cartella:"},
    {"File &name:", "&Nome del file:"},
    {"Files of type:", "Tipo di file:"},
    {"Back", "Indietro"},
    {"Forward", "Avanti"},
    {"Parent Directory", "Cartella superiore"},
    {"Create New Folder", "Nuova cartella"},
    {"&New Folder", "&Nuova cartella"},
    {"New Folder", "Nuova cartella"},
    {"List View", "Elenco"},
    {"Detail View", "Dettagli"},
    {"&Rename", "&Rinomina"},
    {"Show &hidden files", "Mostra i file &nascosti"},
    {"Sidebar", "Cartelle"},
    {"Files", "File"},
    {"Recent Places", "Luoghi recenti"},
    {"Computer", "Computer"},
    {"My Computer", "Computer"},
    {"Name", "Nome"},
    {"Size", "Dimensione"},
    {"Type", "Tipo"},
    {"Kind", "Tipo"},
    {"Date Modified", "Ultima modifica"},
    {"All Files (*)", "Tutti i file (*)"},
    {"%1 already exists.\nDo you want to replace it?", "%1 esiste già.\nSostituirlo?"},
    {"'%1' is write protected.\nDo you want to delete it anyway?", "\"%1\" è protetto da scrittura.\nEliminarlo?"},
    {"Are you sure you want to delete '%1'?", "Eliminare \"%1\"?"},
    {"Could not delete directory.", "La cartella non può essere eliminata."},
    {"Find", "Cerca"},
    {"Print", "Stampa"},
}};

}  // namespace

QString ItalianTexts::translate(const char* context, const char* source, const char* disambiguation, int number) const {
    (void)disambiguation;
    (void)number;
    // Only what the toolkit itself says: its contexts are the names of its classes.
    if (context == nullptr || context[0] != 'Q') return {};
    const std::string_view wanted(source == nullptr ? "" : source);
    const auto* const at =
        std::find_if(pairs.begin(), pairs.end(), [&](const Pair& pair) { return pair.source == wanted; });
    return at == pairs.end() ? QString() : QString::fromUtf8(at->italian);
}

}  // namespace vorbano
