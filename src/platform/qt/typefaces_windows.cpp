#include "platform/qt/typefaces.h"

namespace vorbano {

/// The system keeps the list of its typefaces ready for every program.
std::future<void> readTypefaces() {
    std::promise<void> done;
    done.set_value();
    return done.get_future();
}

}  // namespace vorbano
