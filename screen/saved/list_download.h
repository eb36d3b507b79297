// The download of the user's sets, in one packet or in a chain of them, and the rebuilding of his file.
//
// Relies on the request channel and its guard. Nothing is written before the last packet has come. A late
// packet still counts; one that answers a request that has been given up doesn't, so that the pieces of two
// downloads never mix.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "screen/condition/catalogue.h"
#include "screen/saved/saved_mirror.h"
#include "screen/transactions/list_request.h"
#include "screen/transactions/packet_writer.h"
#include "screen/transactions/request_channel.h"

namespace jogeon {

class ListDownload {
public:
    // How the user's file came out of an answer.
    enum class Outcome { Unchanged, Rebuilt };

    // `loaded` is called when the file is to be shown. All of these outlive this object.
    ListDownload(RequestChannel& channel, SavedMirror& mirror, host::Questions& questions,
                 std::function<void(Outcome)> loaded)
        : channel_(channel), mirror_(mirror), questions_(questions), loaded_(std::move(loaded)) {}

    void LinkCatalogue(const Catalogue& catalogue) { catalogue_ = &catalogue; }

    // Asks the server what has changed since the mirror's version. A download under way is forgotten.
    void Start();

    // A reply to a list request, by its first byte; `key` is the key of the request that it answers.
    void OnReply(std::string_view data, std::uint8_t key);

    // The server doesn't answer: the user goes on with his file. What has been gathered stays.
    void OnTimeout() { loaded_(Outcome::Unchanged); }

private:
    void RequestList(ListStep step, const std::string& number, std::uint8_t key);
    bool IsAwaited(std::uint8_t key) const;
    void TakePacket(const ListReply& reply);
    bool Gather(const ListReply& reply);
    void AskForMore(const std::string& number);
    void Finish();
    void GiveUp();
    void Forget();

    RequestChannel& channel_;
    SavedMirror& mirror_;
    host::Questions& questions_;
    std::function<void(Outcome)> loaded_;
    const Catalogue* catalogue_ = nullptr;

    std::optional<PacketWriter> catalogueBuffer_;  // the records of a chain that goes on
    int catalogueBlocks_ = 0;                      // records in it
    std::string version_;                          // of the chain's first packet
    int packets_ = 0;
    std::optional<std::uint8_t> awaited_;  // key of the request that is to be answered next
    std::set<std::uint8_t> sent_;          // keys of all list requests so far
};

// Makes the user's file of `count` records, as the server sent them; one with an indicator that the catalogue
// doesn't have is left out. False if the file can't be written: file and version are the old ones then.
bool RewriteFromServer(std::string_view data, int count, const Catalogue& catalogue, std::string_view version,
                       SavedMirror& mirror);

}  // namespace jogeon
