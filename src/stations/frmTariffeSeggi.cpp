#include "stations/frmTariffeSeggi.h"

namespace vorbano {

frmTariffeSeggi::frmTariffeSeggi(const Workplace& workplace)
    : normal(form, normalTariffNames, workplace), special(form, specialTariffNames, workplace) {
    Frame2.enabled = false;
    for (TextBox* field : {&txtPresAnd, &txtSegrAnd, &txtScrutAnd}) field->enabled = false;
    normal.type.clicked.calls(this, &frmTariffeSeggi::Combo1_Click);
    normal.all.clicked.calls(this, &frmTariffeSeggi::Check7_Click);
    normal.save.clicked.calls(this, &frmTariffeSeggi::cmdSalva_Click);
    special.type.clicked.calls(this, &frmTariffeSeggi::Combo2_Click);
    special.all.clicked.calls(this, &frmTariffeSeggi::Check10_Click);
    special.save.clicked.calls(this, &frmTariffeSeggi::cmdSalva2_Click);
}

void frmTariffeSeggi::Combo1_Click() { normal.choose(); }

void frmTariffeSeggi::Check7_Click() { normal.openAll(); }

void frmTariffeSeggi::cmdSalva_Click() { normal.store(); }

void frmTariffeSeggi::Combo2_Click() { special.choose(); }

void frmTariffeSeggi::Check10_Click() { special.openAll(); }

void frmTariffeSeggi::cmdSalva2_Click() { special.store(); }

}  // namespace vorbano
