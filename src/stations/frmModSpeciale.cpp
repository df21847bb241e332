#include "stations/frmModSpeciale.h"

namespace vorbano {

frmModSpeciale::frmModSpeciale(const Workplace& workplace) : StationCorrection(modSpecialeTerms, workplace) {}

}  // namespace vorbano
