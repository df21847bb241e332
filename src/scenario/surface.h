#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <string_view>

namespace vorbano {

/// What a scenario met of the program: windows, controls gestured at, boxes, texts looked at, layouts, files looked
/// into, and which of the controls changed a file. The check of the surfaces adds them up over all scenarios.
class Surface {
  public:
    /// Kept for `file`, one line each ("control frmCompStraord.cmdSalva", line ends as \n); kept nowhere when empty.
    explicit Surface(std::filesystem::path file) : file_(std::move(file)) {}
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;
    ~Surface();

    void met(std::string_view kind, std::string_view what);
    /// From here on this control is at work.
    void worksAt(std::string_view control) { atWork_ = control; }
    /// A file was changed by what the control at work does ("writes frmElimina.cmdElimina").
    void wrote();

  private:
    std::filesystem::path file_;
    std::set<std::string> lines_;
    std::string atWork_;
};

}  // namespace vorbano
