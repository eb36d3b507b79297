// Saves of a set of twenty conditions, from the bytes of the request to the bytes of the answer, and the list
// of 99 such sets, on real files in the folder that JOGEON_BENCH_FOLDER names or else in the current one.
//
// Each thread is a user. All on one store is what a service does; on a store each they meet only at the disk;
// on one store through a connection each they are as processes that share a file. Beside them the same bytes
// are plainly written over a file of each user's and flushed: less than that no answered save can cost.
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include "bench/stored_record.h"
#include "screen/text/bytes.h"
#include "screen/transactions/list_request.h"
#include "server/service/store_service.h"

namespace jogeon {
namespace {

constexpr int kSets = 99;

// A folder of this process's, gone with it.
class Folder {
public:
    Folder() {
        const char* place = std::getenv("JOGEON_BENCH_FOLDER");
        path_ = std::filesystem::path(place ? place : ".") / ("store_bench." + std::to_string(getpid()));
        std::filesystem::create_directories(path_);
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

const Folder& TheFolder() {
    static const Folder folder;
    return folder;
}

std::string User(int thread) {
    return "user" + ZeroPadded(thread, 3);
}

std::string Answer(service::StoreService& service, const std::string& user, const std::string& payload) {
    return service.Handle({user, 1, "pisodbop", 0xA2, payload});
}

std::string VersionIn(const std::string& reply) {
    return std::string(Read(reply, list_reply::kVersion));
}

// Saves over one set, each time with the version that the last answer told.
void SaveOver(benchmark::State& state, service::StoreService& service) {
    const std::string user = User(state.thread_index());
    const std::string record = Record(user, "00");
    const std::string nothing = "V0" + LeftIn(user, 8) + "00nothing";
    std::string version = VersionIn(Answer(service, user, nothing));
    for (auto _ : state) {
        const std::string reply = Answer(service, user, "E" + version + record);
        if (!reply.starts_with("E1")) {
            state.SkipWithError("a save failed");
            break;
        }
        version = VersionIn(reply);
    }
    state.SetItemsProcessed(state.iterations());
}

// Made by the first thread that comes, and kept: threads of one run may begin in any order.
service::StoreService& OneStore() {
    static service::StoreService service(TheFolder() / "one.sqlite");
    return service;
}

void OneStoreForAll(benchmark::State& state) {
    SaveOver(state, OneStore());
}

void AStoreEach(benchmark::State& state) {
    service::StoreService service(TheFolder() / (User(state.thread_index()) + ".sqlite"));
    SaveOver(state, service);
}

void OneStoreAConnectionEach(benchmark::State& state) {
    service::StoreService service(TheFolder() / "shared.sqlite");
    SaveOver(state, service);
}

void PlainWriteAndFlush(benchmark::State& state) {
    const std::string user = User(state.thread_index());
    const std::string bytes = "E000.000" + Record(user, "00");
    const int file = open((TheFolder() / (user + ".plain")).c_str(), O_RDWR | O_CREAT, 0600);
    for (auto _ : state) {
        const bool written =
            pwrite(file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size());
        if (!written || fsync(file) != 0) {
            state.SkipWithError("a write failed");
            break;
        }
    }
    close(file);
    state.SetItemsProcessed(state.iterations());
}

// From the first request to the last packet.
void ListOf99Sets(benchmark::State& state) {
    const std::string user = "lister";
    const std::filesystem::path file = TheFolder() / "list.sqlite";
    service::StoreService service(file);
    std::string version = "000.000";
    for (int i = 0; i < kSets; ++i)
        version = VersionIn(Answer(service, user, "E" + version + Record(user, ZeroPadded(i, 2))));
    int packets = 0;
    int sets = 0;
    std::size_t bytes = 0;
    for (auto _ : state) {
        packets = sets = 0;
        std::string reply = Answer(service, user, ComposeListRequest(ListStep::First, user, "00", "000.000"));
        for (bool more = true; more;) {
            ++packets;
            sets += ReadNumber(reply, list_reply::kCount);
            bytes += reply.size();
            more = Read(reply, list_reply::kMore) == "1";
            if (!more) break;
            reply = Answer(service, user,
                           ComposeListRequest(ListStep::Following, user, Read(reply, list_reply::kNumber),
                                              Read(reply, list_reply::kVersion)));
        }
    }
    if (sets != kSets) state.SkipWithError("not every set came");
    state.counters["packets"] = packets;
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
    std::filesystem::remove(file);
}

void Users(benchmark::internal::Benchmark* benchmark) {
    for (int users : {1, 10, 100}) benchmark->Threads(users);
    benchmark->UseRealTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK(OneStoreForAll)->Apply(Users);
BENCHMARK(AStoreEach)->Apply(Users);
BENCHMARK(OneStoreAConnectionEach)->Apply(Users);
BENCHMARK(PlainWriteAndFlush)->Apply(Users);
BENCHMARK(ListOf99Sets)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace jogeon

BENCHMARK_MAIN();
