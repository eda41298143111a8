#pragma once

#include <cstdint>

// Values of settings that have a meaning of their own.
namespace host::value {

inline constexpr std::int32_t DemonstrationConnection = 3;  // ConnectionType

inline constexpr std::int32_t ToDisplay = 0;  // ReceiveOutput
inline constexpr std::int32_t ToPcFile = 1;
inline constexpr std::int32_t ToSpreadsheet = 3;

inline constexpr std::int32_t DataFile = 0;  // HostFileType
inline constexpr std::int32_t SourceFile = 1;

inline constexpr std::int32_t CreateFile = 0;  // CreateMode
inline constexpr std::int32_t CreateMember = 1;
inline constexpr std::int32_t ReplaceMember = 2;

inline constexpr std::int32_t AskUser = 0;  // ExistingFileAction
inline constexpr std::int32_t Replace = 1;
inline constexpr std::int32_t Append = 2;

inline constexpr std::int32_t RouterIbm = 1;  // RouterKind
inline constexpr std::int32_t RouterAs400 = 2;

inline constexpr std::int32_t TransportAs400 = 30;  // TransportType

}  // namespace host::value
