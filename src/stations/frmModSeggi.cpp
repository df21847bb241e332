#include "stations/frmModSeggi.h"

namespace vorbano {

frmModSeggi::frmModSeggi(const Workplace& workplace) : StationCorrection(modSeggiTerms, workplace) {}

}  // namespace vorbano
