#pragma once

#include "api/Clocks.h"
#include "api/FileDelivery.h"
#include "api/ReleaseStore.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvane::cloud {

// A folder that cannot be published as a release; what() says why.
class ReleaseFolderError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// How the files of the release are delivered; see FileDelivery.
struct DeliveryFaults
{
    std::string fileName; // of which file; empty = of each
    std::uint64_t bytesPerSec = 0;
    std::optional<std::uint64_t> breakOffAfter;
    std::optional<std::uint64_t> stallAfter;
    std::int64_t stallMs = 0;
    bool corrupt = false;
};

// The files of the release that the service offers itself, in a folder of its own: the installers and
// "latest.yml", which describes them to the client. Any thread. Owned by ServiceData.
class ReleaseFolder
{
public:
    // `folder` need not exist; what is in it is the release of an earlier run, which may have ended in the
    // middle of publish().
    explicit ReleaseFolder(std::filesystem::path folder);

    // Takes over copies of the files in a folder of this machine, in place of the release before. Without a
    // "latest.yml" among them one is written, about the last file by name that is an installer. Returns the
    // files but for "latest.yml", by name. Throws ReleaseFolderError, and then nothing has changed.
    std::vector<Release::File> publish(
        const std::string &version, const std::filesystem::path &source, WallTime releaseDate);
    // Removes the files.
    void withdraw();

    // The file for one request, disturbed as setFaults wants it; none if the release has no such file. Each
    // call counts.
    std::optional<FileDelivery> open(const std::string &fileName);
    // Requests so far, by the names of the files that there are.
    std::map<std::string, std::int64_t> requestCounts() const;
    // For requests from now on.
    void setFaults(const DeliveryFaults &faults);

private:
    // "latest.yml" about an installer.
    static std::string describe(
        const std::string &version, const std::filesystem::path &installer, WallTime releaseDate);

    const std::filesystem::path m_folder;
    mutable std::mutex m_mutex; // of everything below, and of the folder
    std::map<std::string, std::int64_t> m_requestCounts; // has each file of the release
    DeliveryFaults m_faults;
};

} // namespace orvane::cloud
