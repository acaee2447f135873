#include "api/ReleaseFolder.h"

#include <QByteArray>
#include <QDateTime>

#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

namespace orvane::cloud {

namespace fs = std::filesystem;

namespace {

// What the client looks for.
constexpr const char *descriptionName = "latest.yml";
constexpr std::string_view installerPrefix = "Orvane_Setup";
constexpr std::string_view installerSuffix = ".exe";

// Of the folders beside the release's: what is about to be published, and what was before.
constexpr const char *preparedSuffix = ".new";
constexpr const char *formerSuffix = ".old";

constexpr std::size_t maxFiles = 100;

fs::path besides(fs::path folder, const char *suffix)
{
    return folder += suffix;
}

// Puts `prepared` in the place of `folder`. Where that fails, `folder` is what it was.
void exchange(const fs::path &folder, const fs::path &prepared)
{
    const fs::path former = besides(folder, formerSuffix);
    fs::remove_all(former);
    const bool hadFormer = fs::exists(folder);
    if (hadFormer)
        fs::rename(folder, former);
    try {
        fs::rename(prepared, folder);
    } catch (const fs::filesystem_error &) {
        if (hadFormer)
            fs::rename(former, folder);
        throw;
    }
    std::error_code ignored; // the next time
    fs::remove_all(former, ignored);
}

bool isInstaller(const std::string &name)
{
    return name.size() >= installerPrefix.size() + installerSuffix.size()
        && name.compare(0, installerPrefix.size(), installerPrefix) == 0
        && name.compare(name.size() - installerSuffix.size(), std::string::npos, installerSuffix) == 0;
}

// By name.
std::vector<fs::path> filesIn(const fs::path &folder)
{
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (entry->is_regular_file(error))
            files.push_back(entry->path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

// Standard Base64 of the file's SHA-512.
std::string sha512Of(const fs::path &path)
{
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int digestBytes = 0;
    std::ifstream file(path, std::ios::binary);
    std::array<char, 65'536> piece{};
    bool good = context && file && EVP_DigestInit_ex(context.get(), EVP_sha512(), nullptr) == 1;
    while (good && !file.eof()) {
        file.read(piece.data(), piece.size());
        good = !file.bad()
            && EVP_DigestUpdate(context.get(), piece.data(), static_cast<std::size_t>(file.gcount())) == 1;
    }
    if (!good || EVP_DigestFinal_ex(context.get(), digest.data(), &digestBytes) != 1)
        throw ReleaseFolderError("cannot read " + path.string());
    return QByteArray(reinterpret_cast<const char *>(digest.data()), static_cast<int>(digestBytes))
        .toBase64()
        .toStdString();
}

// A YAML scalar in double quotes; names and versions have no control characters.
std::string quoted(const std::string &text)
{
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\')
            result += '\\';
        result += character;
    }
    return result + '"';
}

} // namespace

ReleaseFolder::ReleaseFolder(fs::path folder)
    : m_folder(std::move(folder))
{
    std::error_code error;
    if (!fs::exists(m_folder, error))
        fs::rename(besides(m_folder, formerSuffix), m_folder, error); // usually there is none
    for (const fs::path &file : filesIn(m_folder))
        m_requestCounts[file.filename()] = 0;
}

std::string ReleaseFolder::describe(
    const std::string &version, const fs::path &installer, WallTime releaseDate)
{
    const std::string name = quoted(installer.filename());
    const std::string sha512 = quoted(sha512Of(installer));
    const auto milliseconds
        = std::chrono::duration_cast<std::chrono::milliseconds>(releaseDate.time_since_epoch()).count();
    const std::string date
        = QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODateWithMs).toStdString();
    return "version: " + quoted(version) + "\nfiles:\n  - url: " + name + "\n    sha512: " + sha512
        + "\n    size: " + std::to_string(fs::file_size(installer)) + "\npath: " + name
        + "\nsha512: " + sha512 + "\nreleaseDate: " + quoted(date) + '\n';
}

std::vector<Release::File> ReleaseFolder::publish(
    const std::string &version, const fs::path &source, WallTime releaseDate)
{
    const std::vector<fs::path> files = filesIn(source);
    if (files.empty() || files.size() > maxFiles)
        throw ReleaseFolderError("\"folder\" must hold 1 to " + std::to_string(maxFiles) + " files");
    const std::lock_guard lock(m_mutex);
    const fs::path prepared = besides(m_folder, preparedSuffix);
    try {
        fs::remove_all(prepared);
        fs::create_directories(prepared);
        for (const fs::path &file : files)
            fs::copy_file(file, prepared / file.filename());
        if (!fs::exists(prepared / descriptionName)) {
            const auto installer = std::find_if(files.rbegin(), files.rend(),
                [](const fs::path &file) { return isInstaller(file.filename()); });
            if (installer == files.rend())
                throw ReleaseFolderError(
                    "\"folder\" holds neither an installer nor " + std::string(descriptionName));
            std::ofstream description(prepared / descriptionName, std::ios::binary);
            description << describe(version, *installer, releaseDate) << std::flush;
            if (!description)
                throw ReleaseFolderError("cannot write " + std::string(descriptionName));
        }
        exchange(m_folder, prepared);
    } catch (const fs::filesystem_error &error) {
        throw ReleaseFolderError(error.what());
    }

    m_requestCounts.clear();
    std::vector<Release::File> offered;
    for (const fs::path &file : filesIn(m_folder)) {
        const std::string name = file.filename();
        m_requestCounts[name] = 0;
        if (name != descriptionName)
            offered.push_back({name, static_cast<std::int64_t>(fs::file_size(file))});
    }
    return offered;
}

void ReleaseFolder::withdraw()
{
    const std::lock_guard lock(m_mutex);
    std::error_code ignored; // what stays is not served
    fs::remove_all(besides(m_folder, formerSuffix), ignored);
    fs::remove_all(m_folder, ignored);
    m_requestCounts.clear();
}

std::optional<FileDelivery> ReleaseFolder::open(const std::string &fileName)
{
    const std::lock_guard lock(m_mutex);
    const auto count = m_requestCounts.find(fileName);
    if (count == m_requestCounts.end())
        return std::nullopt;
    ++count->second;
    FileDelivery delivery;
    delivery.file.open(m_folder / fileName, std::ios::binary | std::ios::ate);
    if (!delivery.file)
        return std::nullopt;
    delivery.bytes = static_cast<std::uint64_t>(delivery.file.tellg());
    delivery.file.seekg(0);
    if (m_faults.fileName.empty() || m_faults.fileName == fileName) {
        delivery.bytesPerSec = m_faults.bytesPerSec;
        delivery.breakOffAfter = m_faults.breakOffAfter;
        delivery.stallAfter = m_faults.stallAfter;
        delivery.stallMs = m_faults.stallMs;
        delivery.corrupt = m_faults.corrupt;
    }
    return delivery;
}

std::map<std::string, std::int64_t> ReleaseFolder::requestCounts() const
{
    const std::lock_guard lock(m_mutex);
    return m_requestCounts;
}

void ReleaseFolder::setFaults(const DeliveryFaults &faults)
{
    const std::lock_guard lock(m_mutex);
    m_faults = faults;
}

} // namespace orvane::cloud
