#pragma once

#include <filesystem>

#include "Z7XFRPCS/exports.h"

// The transfer library as a program sees it: its 14 exports, and nothing else.
struct TransferLibrary {
    decltype(&::newZXFRPCSCLIENT) newClient = nullptr;
    decltype(&::deleteZXFRPCSCLIENT) deleteClient = nullptr;
    decltype(&::getZXFRPCSCLIENT) getClient = nullptr;
    decltype(&::EHNTF_STF_Callback) yieldCallback = nullptr;
    decltype(&::pcsTransferFile) transferFile = nullptr;
    decltype(&::pcsGetFirstHostFilename) firstHostFilename = nullptr;
    decltype(&::pcsGetNextHostFilename) nextHostFilename = nullptr;
    decltype(&::pcsAreXferCmdsEnabled) areCommandsEnabled = nullptr;
    decltype(&::TextDisplayMoreNotification) displayMore = nullptr;
    decltype(&::TextDisplayCloseNotification) displayClose = nullptr;
    decltype(&::pcsCancelTransfer) cancelTransfer = nullptr;
    decltype(&::stateChangeProc) stateChange = nullptr;
    decltype(&::runtimeSettingNotification) runtimeSetting = nullptr;
    decltype(&::xferCleanup) cleanup = nullptr;
};

// Loads the library from a folder and binds every export. Throws std::runtime_error, naming the file and, where one is
// missing, the export.
TransferLibrary loadTransferLibrary(const std::filesystem::path& folder);
