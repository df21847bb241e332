#include "screens/failure_words.h"

namespace vorbano {

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
            return "Il file " + subject + " non è nel formato di questa versione del programma.";
        case Failure::full:
            return "Il file " + subject + " contiene già il numero massimo di record.";
    }
    return {};
}

bool wellDone(const Result<>& result, Desktop& desktop) {
    if (!result) desktop.tell({inItalian(result.error()), "Errore", Icon::error});
    return result.ok();
}

}  // namespace vorbano
