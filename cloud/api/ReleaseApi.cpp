#include "api/ReleaseApi.h"

#include "api/ApiError.h"
#include "api/Router.h"
#include "api/ServiceData.h"

namespace orvane::cloud {

namespace {

// What the values of the bodies may be at most.
constexpr std::int64_t maxVersionCode = 1'000'000'000;
constexpr std::size_t maxNotesBytes = 65'536;
constexpr std::size_t maxUrlBytes = 2048;
constexpr std::size_t maxReleaseFiles = 100;
constexpr std::size_t maxFileNameBytes = 255;
constexpr std::size_t maxPathBytes = 4096;
constexpr std::int64_t maxFileBytes = 1'000'000'000'000;
constexpr std::int64_t maxKbitPerSec = 10'000'000;
constexpr std::int64_t maxStallMs = 600'000;

constexpr std::int64_t bytesPerKbit = 1000 / 8;

// A number of bytes; none when it is missing.
std::optional<std::uint64_t> optionalBytes(const Fields &body, const char *name)
{
    if (!body.contains(name))
        return std::nullopt;
    return static_cast<std::uint64_t>(body.integer(name, 0, maxFileBytes));
}

} // namespace

ReleaseApi::ReleaseApi(ServiceData &data)
    : m_data(data)
{ }

void ReleaseApi::addRoutes(Router &router)
{
    using Verb = Router::Verb;
    router.addFiles(
        "/release/{file}", [this](const std::string &name) { return m_data.releaseFiles.open(name); });
    router.add(Verb::post, "/admin/release", Access::Tests,
        [this](const ApiCall &call) { return setRelease(call); });
    router.add(Verb::post, "/admin/release/faults", Access::Tests,
        [this](const ApiCall &call) { return setFaults(call); });
    router.add(Verb::get, "/admin/release/requests", Access::Tests,
        [this](const ApiCall &call) { return requests(call); });
}

ApiAnswer ReleaseApi::setRelease(const ApiCall &call)
{
    Release release;
    release.version = call.body.emptyOrText("version");
    if (release.version.empty()) {
        m_data.releases.withdraw();
        m_data.releaseFiles.withdraw();
        return {};
    }
    release.versionCode = call.body.integer("version_code", 1, maxVersionCode);
    release.notes = call.body.lines("notes", maxNotesBytes);
    if (call.body.contains("folder")) {
        try {
            release.files = m_data.releaseFiles.publish(
                release.version, call.body.text("folder", maxPathBytes), m_data.clocks.wall());
        } catch (const ReleaseFolderError &error) {
            throw ApiError(ApiCode::BadField, error.what());
        }
        m_data.releases.offer(release);
        return {};
    }
    release.updatePath = call.body.text("update_path", maxUrlBytes);
    for (const Fields &file : call.body.objects("files", maxReleaseFiles))
        release.files.push_back(
            {file.text("file_name", maxFileNameBytes), file.integer("size", 0, maxFileBytes)});
    m_data.releases.offer(release);
    m_data.releaseFiles.withdraw();
    return {};
}

ApiAnswer ReleaseApi::setFaults(const ApiCall &call)
{
    DeliveryFaults faults;
    faults.fileName = call.body.textOrEmpty("file", maxFileNameBytes);
    if (call.body.contains("kbit_per_s"))
        faults.bytesPerSec
            = static_cast<std::uint64_t>(call.body.integer("kbit_per_s", 0, maxKbitPerSec) * bytesPerKbit);
    faults.breakOffAfter = optionalBytes(call.body, "break_off_after");
    faults.stallAfter = optionalBytes(call.body, "stall_after");
    if (faults.stallAfter)
        faults.stallMs = call.body.integer("stall_ms", 0, maxStallMs);
    faults.corrupt = call.body.contains("corrupt") && call.body.boolean("corrupt");
    m_data.releaseFiles.setFaults(faults);
    return {};
}

ApiAnswer ReleaseApi::requests(const ApiCall &)
{
    QJsonObject counts;
    for (const auto &[name, count] : m_data.releaseFiles.requestCounts())
        counts.insert(QString::fromStdString(name), static_cast<qint64>(count));
    return {{{QStringLiteral("requests"), counts}}, {}};
}

} // namespace orvane::cloud
