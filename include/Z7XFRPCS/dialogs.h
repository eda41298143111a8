#ifndef Z7XFRPCS_DIALOGS_H
#define Z7XFRPCS_DIALOGS_H

#include "Z7XFRPCS/types.h"

/* Transfer dialog services: the progress dialog and the connection dialog. */

/* Direction of a progress dialog and of the setting TransferDirection. */
enum ZhstDirection {
    ZhstToHost = 0,
    ZhstFromHost = 1,
};

/* Unit of a progress total. */
enum ZhstProgressUnit {
    ZhstRecords = 1,
    ZhstBytes = 2,
};

/* Commands of the progress dialog, as sent. Commands 29 to 35 show the type of the PC file; they stand with the types
   in settings.h. */
enum ZhstProgressCommand {
    ZhstDataBegins = 0,
    ZhstEnded = 1,
    ZhstSimulationCancelled = 2,
    ZhstAllDataTransferred = 4,
    ZhstProcessMessages = 16,
    ZhstStarting = 23,
    ZhstCountingRecords = 24,
    ZhstPreparingConversion = 25,
    ZhstOptionsRequest = 26,
    ZhstTransferRequest = 27,
    ZhstReadingFields = 28,
};

#ifdef __cplusplus
extern "C" {
#endif

/* mode: 0 without a display, 1 or 2 with one. 0 when it cannot be created. */
ZhstProgressDialog ZHST_CALL zhstProgressDialogCreate(ZhstSession session, uint32_t direction, uint32_t mode,
                                                      uint32_t reserved);
void ZHST_CALL zhstProgressDialogCommand(ZhstProgressDialog dialog, uint32_t command);
void ZHST_CALL zhstProgressDialogDestroy(ZhstProgressDialog dialog);
void ZHST_CALL zhstProgressDialogSetPcName(ZhstProgressDialog dialog, const char* text);
void ZHST_CALL zhstProgressDialogSetHostName(ZhstProgressDialog dialog, const char* text);
/* The amount that stands for 100 per cent. */
void ZHST_CALL zhstProgressDialogSetTotal(ZhstProgressDialog dialog, uint32_t total, uint32_t unit);
void ZHST_CALL zhstProgressDialogHide(ZhstProgressDialog dialog);
void ZHST_CALL zhstProgressDialogShow(ZhstProgressDialog dialog);
/* 0 when the user cancels. `module` is the library's own. */
uint32_t ZHST_CALL zhstConnectionDialog(ZhstSession session, ZhstModule module, ZhstWindow owner);

#ifdef __cplusplus
}
#endif

#endif
