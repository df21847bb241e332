#include "screens/well_done.h"

#include "platform/failure_words.h"

namespace vorbano {

bool wellDone(const Result<>& result, Desktop& desktop) {
    if (!result) desktop.tell({inItalian(result.error()), "Errore", Icon::error});
    return result.ok();
}

}  // namespace vorbano
