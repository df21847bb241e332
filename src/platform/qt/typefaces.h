#pragma once

#include <future>

namespace vorbano {

/// Has the system read its rules about typefaces and its list of them, which the first letter of the first window waits
/// for, beside what the program does meanwhile. It touches nothing of the program; whoever shows letters waits for the
/// end of it first. There is no failure: what could not be read early is read when it is needed.
[[nodiscard]] std::future<void> readTypefaces();

}  // namespace vorbano
