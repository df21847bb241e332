#include "platform/qt/failure_words.h"

#include <algorithm>

namespace vorbano {

namespace {

bool isDatabaseName(const std::string& subject) {
    constexpr std::string_view ending = ".mdb";
    if (subject.size() < ending.size()) return false;
    return sameTableName(std::string_view(subject).substr(subject.size() - ending.size()), ending);
}

}  // namespace

std::string describe(const Error& error) {
    const std::string subject = error.subject.empty() ? std::string("richiesto") : error.subject;
    switch (error.kind) {
        case Failure::notFound:
            return "Non è stato trovato: " + subject + ".";
        case Failure::missingFolder:
            return "Manca la cartella del file " + subject + ".";
        case Failure::refused:
            return "Il file " + subject +
                   " non può essere letto o scritto: controllare che non sia di sola lettura o aperto in un altro "
                   "programma.";
        case Failure::device:
            return "L'operazione sul file " + subject + " non è riuscita: controllare lo spazio libero sul disco.";
        case Failure::badName:
            return "Il nome " + subject + " non è valido.";
        case Failure::damaged:
            return isDatabaseName(subject) ? "Il file " + subject +
                                                 " non è un archivio di questa versione del programma: può essere "
                                                 "danneggiato, o provenire da un'installazione precedente."
                                           : "Errore nel modello di stampa: " + subject + ".";
        case Failure::full:
            return "Il file " + subject + " contiene già il numero massimo di record.";
    }
    return {};
}

std::string describe(DatabaseKind kind, const std::string& fileName) {
    switch (kind) {
        case DatabaseKind::ours:
            return {};
        case DatabaseKind::missing:
            return describe(Error{Failure::notFound, fileName});
        case DatabaseKind::unreadable:
            return describe(Error{Failure::refused, fileName});
        case DatabaseKind::older:
            return "Il file " + fileName +
                   " proviene da un'installazione precedente e il suo formato non può essere letto da questa versione. "
                   "Spostarlo in un'altra cartella e riavviare il programma, che ne preparerà uno nuovo.";
        case DatabaseKind::foreign:
            return describe(Error{Failure::damaged, fileName});
    }
    return {};
}

}  // namespace vorbano
