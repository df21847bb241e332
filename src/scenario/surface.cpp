#include "scenario/surface.h"

#include <fstream>

namespace vorbano {

void Surface::met(std::string_view kind, std::string_view what) {
    if (file_.empty()) return;
    std::string line = std::string(kind) + ' ';
    for (const char one : what) {
        if (one == '\n') {
            line += "\\n";
        } else if (one != '\r') {
            line += one;
        }
    }
    lines_.insert(std::move(line));
}

void Surface::wrote() {
    if (!atWork_.empty()) met("writes", atWork_);
}

Surface::~Surface() {
    if (file_.empty()) return;
    std::ofstream to(file_, std::ios::binary);
    for (const std::string& line : lines_) to << line << '\n';
}

}  // namespace vorbano
