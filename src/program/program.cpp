#include "program/program.h"

#include <memory>

#include "overtime/frmCompStraord.h"
#include "parameters/frmParametri.h"
#include "reports/frmTutteStampe.h"
#include "shell/Form1.h"

namespace vorbano {

namespace {

template <class Screen>
std::function<void()> shows(const Workplace& workplace) {
    return [&workplace] {
        const auto screen = std::make_unique<Screen>(workplace);
        workplace.desktop.show(screen->form);
    };
}

}  // namespace

Program::Program(FileSystem& files, Desktop& desktop, Database& staging, PrintEngine& printing)
    : workplace_{files, desktop, staging, printing, *this},
      screens_{
          {"frmCompStraord", shows<frmCompStraord>(workplace_)},
          {"frmParametri", shows<frmParametri>(workplace_)},
          {"frmTutteStampe", shows<frmTutteStampe>(workplace_)},
      } {}

void Program::run() {
    const auto main = std::make_unique<Form1>(workplace_);
    main->Form_Load();
    workplace_.desktop.show(main->form);
}

std::vector<std::string> Program::names() const {
    std::vector<std::string> names;
    for (const auto& screen : screens_) names.push_back(screen.first);
    return names;
}

bool Program::has(std::string_view name) const { return screens_.contains(name); }

void Program::open(std::string_view name) {
    if (const auto screen = screens_.find(name); screen != screens_.end()) screen->second();
}

}  // namespace vorbano
