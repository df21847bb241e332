#pragma once

#include <QString>
#include <vector>

#include "base/result.h"
#include "platform/database.h"
#include "platform/qt/places.h"

namespace vorbano {

/// Makes a database of these tables, empty, at a path where no file is.
Result<> makeTables(const QString& path, const std::vector<TableInfo>& tables);

/// Makes the staging database at a path where no file is: every table of the documents, empty.
Result<> makeStagingDatabase(const QString& path);

/// Makes the reference database of places at a path where no file is: `Comuni` and `Stati`, every row, with an index on
/// the name (`COMUNI2L`, `STATI2L`) and one on the code.
Result<> makePlaces(const QString& path, const std::vector<Place>& municipalities, const std::vector<Place>& states);

}  // namespace vorbano
