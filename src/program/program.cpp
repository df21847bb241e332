#include "program/program.h"

#include <memory>

#include "fiscalcode/frmCodFisc.h"
#include "maintenance/frmCancella.h"
#include "overtime/frmCompStraord.h"
#include "overtime/frmElimina.h"
#include "overtime/frmModDate.h"
#include "overtime/frmModStraord.h"
#include "parameters/frmParametri.h"
#include "payments/frmVersamenti.h"
#include "reports/frmTutteStampe.h"
#include "shell/Form1.h"
#include "statement/frmInsRend.h"
#include "statement/frmModRend.h"
#include "stations/frmModSeggi.h"
#include "stations/frmModSpeciale.h"
#include "stations/frmSeggi.h"
#include "stations/frmSeggiSpeciali.h"
#include "stations/frmTariffeSeggi.h"

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

Program::Program(FileSystem& files, Desktop& desktop, Database& staging, Database& places, PrintEngine& printing)
    : watch_(files, desktop),
      workplace_{watch_.files(), watch_.desktop(), staging, printing, *this, places},
      screens_{
          {"frmCancella", shows<frmCancella>(workplace_)},
          {"frmCodFisc", shows<frmCodFisc>(workplace_)},
          {"frmCompStraord", shows<frmCompStraord>(workplace_)},
          {"frmElimina", shows<frmElimina>(workplace_)},
          {"frmInsRend", shows<frmInsRend>(workplace_)},
          {"frmModDate", shows<frmModDate>(workplace_)},
          {"frmModRend", shows<frmModRend>(workplace_)},
          {"frmModSeggi", shows<frmModSeggi>(workplace_)},
          {"frmModSpeciale", shows<frmModSpeciale>(workplace_)},
          {"frmModStraord", shows<frmModStraord>(workplace_)},
          {"frmParametri", shows<frmParametri>(workplace_)},
          {"frmSeggi", shows<frmSeggi>(workplace_)},
          {"frmSeggiSpeciali", shows<frmSeggiSpeciali>(workplace_)},
          {"frmTariffeSeggi", shows<frmTariffeSeggi>(workplace_)},
          {"frmTutteStampe", shows<frmTutteStampe>(workplace_)},
          {"frmVersamenti", shows<frmVersamenti>(workplace_)},
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
