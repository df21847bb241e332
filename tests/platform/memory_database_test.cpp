#include "platform/memory_database.h"

#include "support/database_contract.h"

namespace vorbano::test {

INSTANTIATE_TEST_SUITE_P(Memory, DatabaseContract,
                         testing::Values(DatabaseMaker{
                             "Memory", [] { return std::make_shared<MemoryDatabase>(contractTables()); }}),
                         makerName);

}  // namespace vorbano::test
