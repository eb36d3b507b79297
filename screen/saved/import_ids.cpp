#include "screen/saved/import_ids.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <system_error>

#include "screen/text/bytes.h"

namespace jogeon {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFileEnding = "_SaveIndex.dat";

std::tm LocalTime(std::time_t seconds) {
    std::tm local{};
#if defined(_WIN32)
    localtime_s(&local, &seconds);
#else
    localtime_r(&seconds, &local);
#endif
    return local;
}

}  // namespace

std::string LastSaved(const fs::path& file) {
    std::error_code error;
    const fs::file_time_type written = fs::last_write_time(file, error);
    if (error) return {};
    // The file clock's relation to the calendar isn't portable: its distance to now is.
    const auto age = written - fs::file_time_type::clock::now();
    const auto moment = std::chrono::system_clock::now() +
                        std::chrono::duration_cast<std::chrono::system_clock::duration>(age);
    // To the nearest second: the two clocks are read one after the other.
    const std::tm local =
        LocalTime(std::chrono::system_clock::to_time_t(std::chrono::round<std::chrono::seconds>(moment)));
    const auto two = [](int number) { return ZeroPadded(number, 2); };
    return Decimal(local.tm_year + 1900) + "-" + Decimal(local.tm_mon + 1) + "-" + Decimal(local.tm_mday) +
           " " + two(local.tm_hour) + ":" + two(local.tm_min) + ":" + two(local.tm_sec);
}

std::vector<ImportId> ListImportIds(const fs::path& folder, std::string_view currentId) {
    std::vector<ImportId> ids;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        std::error_code unreadable;
        if (!name.ends_with(kFileEnding) || !entry->is_regular_file(unreadable)) continue;
        std::string id = name.substr(0, name.size() - kFileEnding.size());
        if (id.empty() || id == currentId) continue;
        ids.push_back({std::move(id), LastSaved(entry->path()), entry->path()});
    }
    std::sort(ids.begin(), ids.end(), [](const ImportId& a, const ImportId& b) { return a.id < b.id; });
    return ids;
}

}  // namespace jogeon
