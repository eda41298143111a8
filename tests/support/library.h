#pragma once

#include <string>

#include "Z7XFRPCS/exports.h"

// The library under test, as the emulator has it: a module loaded at run time and the addresses of its exports.
struct Library {
    decltype(&::newZXFRPCSCLIENT) newZXFRPCSCLIENT;
    decltype(&::deleteZXFRPCSCLIENT) deleteZXFRPCSCLIENT;
    decltype(&::getZXFRPCSCLIENT) getZXFRPCSCLIENT;
    decltype(&::EHNTF_STF_Callback) EHNTF_STF_Callback;
    decltype(&::pcsTransferFile) pcsTransferFile;
    decltype(&::pcsGetFirstHostFilename) pcsGetFirstHostFilename;
    decltype(&::pcsGetNextHostFilename) pcsGetNextHostFilename;
    decltype(&::pcsAreXferCmdsEnabled) pcsAreXferCmdsEnabled;
    decltype(&::TextDisplayMoreNotification) TextDisplayMoreNotification;
    decltype(&::TextDisplayCloseNotification) TextDisplayCloseNotification;
    decltype(&::pcsCancelTransfer) pcsCancelTransfer;
    decltype(&::stateChangeProc) stateChangeProc;
    decltype(&::runtimeSettingNotification) runtimeSettingNotification;
    decltype(&::xferCleanup) xferCleanup;

    // Loaded on first use, once per process: the one that $Z7X_LIBRARY names, or that of binFolder(). A library that
    // does not load, or lacks an export, ends the process: no test could say anything then.
    static const Library& get();
};

// Where the libraries stand: $Z7X_BIN, or the folder of the build that made the tests.
std::string binFolder();
