// Saving as the user sees it: from the click to the answer dealt with, and from the opening of the screen to
// the tree filled with 99 sets of twenty conditions, on the real module and service. Beside them what the
// service alone takes for the same bytes, and the opening of the screen with nothing to download.
#include <QTemporaryDir>
#include <filesystem>

#include <benchmark/benchmark.h>

#include "bench/stored_record.h"
#include "screen/transactions/list_request.h"
#include "server/service/local_service.h"
#include "tests/terminal/support/desk.h"

namespace jogeon::terminal {
namespace {

constexpr int kSets = 99;

// A service on a store of its own.
struct Place {
    std::string VersionNow() {
        const std::string reply = Send("V0" + LeftIn(kDeskUser, 8) + "00nothing");
        return std::string(Read(reply, list_reply::kVersion));
    }
    std::string Send(const std::string& payload) {
        return service.Handle({kDeskUser, 1, "pisodbop", 0xA2, payload});
    }

    QTemporaryDir folder;
    QString home = folder.filePath("home");
    service::LocalService service{
        OneStock(), std::make_unique<service::StoreService>(folder.filePath("sets").toStdString())};
};

void FromClickToAnswer(benchmark::State& state) {
    Place place;
    Desk desk(place.service, place.home);
    if (!desk.SaveAs("bench")) state.SkipWithError("the first save failed");
    for (auto _ : state) desk.PressSave();
}

void TheServiceAlone(benchmark::State& state) {
    Place place;
    const std::string record = Record(kDeskUser, "00");
    place.Send("A000.000" + record);
    std::string version = place.VersionNow();
    for (auto _ : state) {
        const std::string reply = place.Send("E" + version + record);
        version = std::string(Read(reply, list_reply::kVersion));
    }
}

// `sets` of the service go into the tree of a terminal that has none.
void FromOpeningToFilledTree(benchmark::State& state) {
    Place place;
    const int sets = static_cast<int>(state.range(0));
    for (int i = 0; i < sets; ++i) place.Send("A" + place.VersionNow() + Record(kDeskUser, "99"));
    PrepareHome(place.home);
    for (auto _ : state) {
        const Desk desk(place.service, place.home);
        state.PauseTiming();
        if (desk.Sets().size() < sets) state.SkipWithError("sets are missing");
        std::filesystem::remove_all((place.home + "/User").toStdString());
        std::filesystem::create_directories((place.home + "/User").toStdString());
        state.ResumeTiming();
    }
}

BENCHMARK(TheServiceAlone)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(FromClickToAnswer)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(FromOpeningToFilledTree)->Arg(0)->Arg(kSets)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace jogeon::terminal
