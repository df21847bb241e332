#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "screens/workplace.h"
#include "screens/write_watch.h"

namespace vorbano {

/// The whole program over a disk, a desk and a print engine: the main window and every screen that it can open.
class Program : public Screens {
  public:
    Program(FileSystem& files, Desktop& desktop, Database& staging, Database& places, PrintEngine& printing);

    /// Shows the main window until it closes.
    void run();

    /// The screens that it can open.
    [[nodiscard]] std::vector<std::string> names() const;
    [[nodiscard]] bool has(std::string_view name) const override;
    void open(std::string_view name) override;

  private:
    WriteWatch watch_;
    Workplace workplace_;
    /// Name of a screen, and what makes it and shows it until it closes.
    std::map<std::string, std::function<void()>, std::less<>> screens_;
};

}  // namespace vorbano
