#pragma once

namespace vorbano {

/// Whoever waits for a long job, and may have enough of it.
class JobWatch {
  public:
    virtual ~JobWatch() = default;
    /// Told after each step how far the job is. False: the job is to stop, leaving nothing behind.
    [[nodiscard]] virtual bool goesOn(int done, int all) = 0;
    /// From here on what was begun cannot be taken back; the steps are still told.
    virtual void cannotStopNow() = 0;
};

}  // namespace vorbano
