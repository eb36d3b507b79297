// The tags under which the screens of a terminal share stocks and conditions: each a main key and a tag in
// the host's store. docs/wire.md says what stands in them.
#pragma once

namespace jogeon::host::tags {

inline constexpr char kUserKey[] = "SharedMainKey";
inline constexpr char kUserTag[] = "USER_ID";

// The linked stock. Changes are told of the first tag.
inline constexpr char kStockKey[] = "ReturnMainKey";
inline constexpr char kStockTag[] = "JCODE";
inline constexpr char kSecondStockTag[] = "J_ECODE";

// What the watch is handed.
inline constexpr char kWatchKey[] = "CS_REAL";
inline constexpr char kWatchSetTag[] = "REALINFO";
inline constexpr char kWatchTextTag[] = "CONDMSG";

// What found the published codes.
inline constexpr char kResultKey[] = "CS_RESULT";
inline constexpr char kResultSetTag[] = "CONDSET";

}  // namespace jogeon::host::tags
