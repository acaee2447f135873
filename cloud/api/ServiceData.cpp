#include "api/ServiceData.h"

#include "api/DatabaseError.h"

#include <filesystem>

namespace orvane::cloud {

namespace {

constexpr const char *releaseFolderName = "release";
constexpr const char *databaseFileName = "orvane-cloud.sqlite";

std::string databasePath(const std::string &folder)
{
    const std::filesystem::path path(folder);
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error)
        throw DatabaseError("cannot create the data folder " + folder + ": " + error.message());
    return path / databaseFileName;
}

} // namespace

ServiceData::ServiceData(const std::string &folder, Clocks serviceClocks)
    : clocks(std::move(serviceClocks))
    , database(databasePath(folder))
    , users(database)
    , signIns(database, clocks)
    , devices(database)
    , groups(database, clocks)
    , sessions(database, clocks)
    , releases(database)
    , releaseFiles(std::filesystem::path(folder) / releaseFolderName)
    , keyMaps(database)
{ }

} // namespace orvane::cloud
