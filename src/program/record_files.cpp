#include "program/record_files.h"

#include <array>

#include "records/overtime_records.h"
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
        RecordInfo{"<data>.vbn", sizeof(EmployeeRecord), employeeFields},
        RecordInfo{"Quartum.vbn", sizeof(LatePeriodRecord), quartumFields},
        RecordInfo{"Pentium.vbn", sizeof(LatePeriodRecord), pentiumFields},
        RecordInfo{"Meirin.vbn", sizeof(MeirinRecord), meirinFields},
        RecordInfo{"Duedate.vbn", sizeof(DuedateRecord), duedateFields},
    };
    return files;
}

}  // namespace vorbano
