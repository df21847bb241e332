#include "platform/failure_words.h"

#include <algorithm>
#include <string_view>

#include "platform/database.h"

namespace vorbano {

namespace {

/// A database of an older installation bears the name of ours; a layout names its file, the line and what is wrong.
std::string damaged(const std::string& subject) {
    constexpr std::string_view database = ".mdb";
    const bool isDatabase = subject.size() >= database.size() &&
                            sameTableName(std::string_view(subject).substr(subject.size() - database.size()), database);
    if (isDatabase) {
        return "Il file " + subject +
               " non è un archivio di questa versione del programma: può essere danneggiato, o provenire da "
               "un'installazione precedente.";
    }
    const bool isLayout = subject.find(".rpt") != std::string::npos || subject.find(".part") != std::string::npos;
    if (isLayout) return "Errore nel modello di stampa: " + subject + ".";
    return "Il file " + subject + " non è nel formato di questa versione del programma.";
}

}  // namespace

std::string inItalian(const Error& error) {
    const std::string subject = error.subject.empty() ? std::string("richiesto") : error.subject;
    switch (error.kind) {
        case Failure::notFound:
            return "Manca il file " + subject + ".";
        case Failure::missingFolder:
            return "Manca la cartella del file " + subject + ".";
        case Failure::refused:
            return "Il file " + subject + " non può essere letto o scritto: controllare che non sia di sola lettura.";
        case Failure::device:
            return "Il disco non ha completato l'operazione sul file " + subject + ".";
        case Failure::badName:
            return "Il nome " + subject + " non è valido.";
        case Failure::damaged:
            return damaged(subject);
        case Failure::full:
            return "Il file " + subject + " contiene già il numero massimo di record.";
        case Failure::diskFull:
            return "Il file " + subject + " non è stato scritto: il disco è pieno.";
    }
    return {};
}

std::string folderInItalian(const Error& error) {
    const std::string folder = error.subject.empty() ? "dell'installazione" : error.subject;
    switch (error.kind) {
        case Failure::diskFull:
            return "La cartella " + folder + " non è stata creata: il disco è pieno.";
        case Failure::refused:
            return "La cartella " + folder + " non può essere creata: controllare che non sia di sola lettura.";
        default:
            return "Il disco non ha completato l'operazione sulla cartella " + folder + ".";
    }
}

std::string inOneBox(const std::vector<std::string>& sentences) {
    constexpr std::size_t most = 5;
    std::string text;
    for (std::size_t at = 0; at < std::min(most, sentences.size()); ++at) text += (at == 0 ? "" : "\n") + sentences[at];
    if (sentences.size() > most)
        text += "\nAltri file non scritti: n. " + std::to_string(sentences.size() - most) + ".";
    return text;
}

}  // namespace vorbano
