#include "program/record_files.h"

#include <array>

#include "records/adjustment_records.h"
#include "records/overtime_records.h"
#include "records/payment_records.h"
#include "records/statement_records.h"
#include "records/station_records.h"
#include "records/station_tariff_records.h"
#include "records/tariff_records.h"
#include "storage/list_files.h"

namespace vorbano {

std::span<const RecordInfo> recordFiles() {
    static const std::array files = {
        RecordInfo{"Ente.dat", sizeof(NameRecord), nameFields},
        RecordInfo{"Comuni.dat", sizeof(NameRecord), nameFields},
        RecordInfo{"Dipend.dat", sizeof(NameRecord), nameFields},
        RecordInfo{"PmDip.dat", sizeof(TariffTable), tariffTableFields()},
        RecordInfo{"NewPmDip.dat", sizeof(TariffTable), tariffTableFields()},
        RecordInfo{"OldPmDip.dat", sizeof(TariffTable), tariffTableFields()},
        RecordInfo{"PmDipc.dat", sizeof(DatedTariffRow), datedTariffFields},
        RecordInfo{"PmSeg.dat", sizeof(SecretaryTariff), secretaryFields()},
        RecordInfo{"Conprev.dat", sizeof(ContribRates), contribFields},
        RecordInfo{"Tarseg.dat", sizeof(NormalTariff), tarsegFields},
        RecordInfo{"TarSpec.dat", sizeof(SpecialTariff), tarSpecFields},
        RecordInfo{"Tarmag.dat", sizeof(NormalTariff), tarmagFields},
        RecordInfo{"Tarmagsp.dat", sizeof(SpecialTariff), tarmagspFields},
        RecordInfo{"<data>.vbn", sizeof(EmployeeRecord), employeeFields},
        RecordInfo{"Quartum.vbn", sizeof(LatePeriodRecord), quartumFields},
        RecordInfo{"Pentium.vbn", sizeof(LatePeriodRecord), pentiumFields},
        RecordInfo{"Meirin.vbn", sizeof(MeirinRecord), meirinFields},
        RecordInfo{"Duedate.vbn", sizeof(DuedateRecord), duedateFields},
        RecordInfo{seggiFile, sizeof(MemberRecord), memberFields},
        RecordInfo{specialeFile, sizeof(MemberRecord), memberFields},
        RecordInfo{seggiRevFile, sizeof(MemberRecord), memberFields},
        RecordInfo{sosSeggiFile, sizeof(SubstituteRecord), substituteFields},
        RecordInfo{sosSpecFile, sizeof(SubstituteRecord), substituteFields},
        RecordInfo{revSosSeggiFile, sizeof(SubstituteRecord), substituteFields},
        RecordInfo{revSosSpecFile, sizeof(SubstituteRecord), substituteFields},
        RecordInfo{segSufFile, sizeof(SegSufRecord), segSufFields},
        RecordInfo{sosSegSufFile, sizeof(SosSegSufRecord), sosSegSufFields},
        RecordInfo{specSufrFile, sizeof(SpecSufrRecord), specSufrFields},
        RecordInfo{sspecSufrFile, sizeof(SspecSufrRecord), sspecSufrFields},
        RecordInfo{"Rendi.vbn", sizeof(RendiRecord), rendiFields},
        RecordInfo{"DivSt.vbn", sizeof(DivStRecord), divStFields},
        RecordInfo{"Tprov.vbn", sizeof(TprovRecord), tprovFields},
        RecordInfo{versumFile, sizeof(PaymentRecord), paymentFields},
        RecordInfo{versumcFile, sizeof(PaymentRecord), paymentFields},
        RecordInfo{reversumFile, sizeof(PaymentRecord), paymentFields},
        RecordInfo{meirincFile, sizeof(MeirincRecord), meirincFields},
        RecordInfo{congsFile, sizeof(AdjustmentRecord), adjustmentFields},
        RecordInfo{congs1File, sizeof(AdjustmentRecord), adjustmentFields},
    };
    return files;
}

}  // namespace vorbano
