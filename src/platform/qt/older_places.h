#pragma once

#include <QString>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"

namespace vorbano {

/// How a file of the older format is opened on this machine.
struct OlderDoors {
    QString driver;              ///< of the toolkit
    std::vector<QString> texts;  ///< what it is asked for, in this order; the first that opens is taken
};

/// By the drivers of the system: that of both formats first, then the elder one that knows only the first of them.
[[nodiscard]] OlderDoors odbcDoors(const QString& path);

/// The list of places of an older installation, only read. A table is read whole at the first need and the file closed
/// again, so that nothing of it is held, and its names stand in the order of bytes as those of every other list do,
/// whatever order and whatever SQL the system's driver knows.
/// Failures name the file without its folder: `notFound`, `refused` (it cannot be opened at all, and every writing),
/// `damaged` (there is no driver for it, or none that can open it), `device` (it could not be read to its end).
class OlderPlaces : public Database {
  public:
    /// The file, an absolute path in UTF-8; names are compared without regard to case.
    explicit OlderPlaces(const std::string& path);
    OlderPlaces(const std::string& path, OlderDoors doors);
    ~OlderPlaces() override;
    OlderPlaces(const OlderPlaces&) = delete;
    OlderPlaces& operator=(const OlderPlaces&) = delete;

    Result<> check() override;
    Result<int> count(std::string_view table) override;
    Result<Row> read(std::string_view table, int number) override;
    Result<std::vector<Row>> seek(std::string_view table, std::string_view field, std::string_view text,
                                  int rows) override;

    Result<> append(std::string_view table, const Row& row) override;
    Result<> removeFirst(std::string_view table, int rows) override;
    Result<> removeAll(std::string_view table) override;
    Result<> begin() override;
    Result<> commit() override;

  private:
    struct Table;
    /// `damaged` when no door opens; else what `use` answers for the open connection, which is closed then.
    template <class Use>
    Result<> opened(const Use& use) const;
    Result<> load(std::string_view name, Table& table) const;
    Result<Table*> table(std::string_view name);
    [[nodiscard]] Error failure(Failure kind) const { return {kind, fileName_}; }

    QString path_;
    std::string fileName_;
    OlderDoors doors_;
    std::vector<std::unique_ptr<Table>> tables_;
};

}  // namespace vorbano
