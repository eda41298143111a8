#ifndef Z7XFRPCS_DIALOGS_H
#define Z7XFRPCS_DIALOGS_H

#include "Z7XFRPCS/types.h"

/* Transfer dialog services: the progress dialog and the connection dialog. */

/* Direction of a progress dialog and of the setting TransferDirection. The export pcsTransferFile counts the other way
   round. */
enum ZhstDirection {
    ZhstToHost = 0,
    ZhstFromHost = 1,
};

/* What a progress dialog shows. */
enum ZhstProgressMode {
    ZhstNoProgress = 0,    /* nothing is on display; the dialog takes commands and processes messages all the same */
    ZhstAmountKnown = 1,   /* a total follows, and the setting ProgressCount is what was done of it */
    ZhstAmountUnknown = 2, /* from the host without a count: there is no total */
};

/* Unit of a progress total. */
enum ZhstProgressUnit {
    ZhstRecords = 1, /* from the host */
    ZhstBytes = 2,   /* to the host */
};

/* Commands of the progress dialog: number, name, when it is sent. The commands 29 to 35 show the type of the PC file,
   in front of command 0; they stand with the types in settings.h. */
#define ZHST_PROGRESS_COMMANDS(X)                                                                           \
    X(0, DataBegins, "The requests are accepted and the fields are known: the data phase begins.")          \
    X(1, Ended,                                                                                             \
      "The transfer has ended, completely or not. A send that ends before its first request gives none, a " \
      "demonstration from the host gives two.")                                                             \
    X(2, SimulationCancelled,                                                                               \
      "The simulated progress of a demonstration was cancelled; command 1 follows only when "               \
      "it was a transfer from the host.")                                                                   \
    X(4, AllDataTransferred, "All records have been received, or the whole PC file has been sent.")         \
    X(16, ProcessMessages,                                                                                  \
      "Process the pending window messages once: the user's Cancel arrives here. Sent between "             \
      "records, while waiting, and by EHNTF_STF_Callback.")                                                 \
    X(23, Starting, "A transfer starts.")                                                                   \
    X(24, CountingRecords, "From the host: the records are counted.")                                       \
    X(25, PreparingConversion, "From the host: the query is accepted, its fields are asked for next.")      \
    X(26, OptionsRequest, "The options request is sent.")                                                   \
    X(27, TransferRequest, "The SELECT or REPLACE request is sent.")                                        \
    X(28, ReadingFields, "The field descriptions are read.")

enum ZhstProgressCommand {
#define ZHST_PROGRESS_COMMAND(number, name, use) Zhst##name = number,
    ZHST_PROGRESS_COMMANDS(ZHST_PROGRESS_COMMAND)
#undef ZHST_PROGRESS_COMMAND
};

ZHST_BEGIN_C

/* Makes the progress dialog of a transfer.
   - session: in, the session
   - direction: in, a ZhstDirection
   - mode: in, a ZhstProgressMode
   - reserved: in, 0
   Result: the dialog, the library's until ProgressDialogDestroy; 0 when it cannot be made.
   When: once in every transfer, before anything is sent, with or without a display.
   Failure: message 4001, and the transfer ends. */
ZhstProgressDialog ZHST_CALL zhstProgressDialogCreate(ZhstSession session, uint32_t direction, uint32_t mode,
                                                      uint32_t reserved);

/* Tells the dialog what is going on. Command 16 is to process pending window messages, during which exports may be
   called.
   - dialog: in, the dialog
   - command: in, a ZhstProgressCommand, or the command of a PC file type
   When: as the list of commands says. */
void ZHST_CALL zhstProgressDialogCommand(ZhstProgressDialog dialog, uint32_t command);

/* Ends the dialog.
   - dialog: in, the dialog
   When: at the end of a transfer; from the host to the screen when the display takes its place. */
void ZHST_CALL zhstProgressDialogDestroy(ZhstProgressDialog dialog);

/* The name of the PC file, to be shown.
   - dialog: in, the dialog
   - text: in, the setting PcFileName
   When: right behind ProgressDialogCreate, when a display is wanted. */
void ZHST_CALL zhstProgressDialogSetPcName(ZhstProgressDialog dialog, const char* text);

/* The name of the host file, to be shown.
   - dialog: in, the dialog
   - text: in, the setting HostFileName
   When: behind ProgressDialogSetPcName. */
void ZHST_CALL zhstProgressDialogSetHostName(ZhstProgressDialog dialog, const char* text);

/* The amount that stands for 100 per cent.
   - dialog: in, the dialog
   - total: in, records or bytes
   - unit: in, a ZhstProgressUnit
   When: from the host once the records are counted, if they are; to the host with the size of the PC file. */
void ZHST_CALL zhstProgressDialogSetTotal(ZhstProgressDialog dialog, uint32_t total, uint32_t unit);

/* Takes the dialog off the screen while a message box is up.
   - dialog: in, the dialog
   When: in front of a box shown during a transfer. */
void ZHST_CALL zhstProgressDialogHide(ZhstProgressDialog dialog);

/* Puts it back.
   - dialog: in, the dialog
   When: behind that box. */
void ZHST_CALL zhstProgressDialogShow(ZhstProgressDialog dialog);

/* Lets the user complete the connection settings (40, 248, 250, 512).
   - session: in, the session
   - module: in, the library's own module, for whoever needs one
   - owner: in, the last active popup of the session's window
   Result: 0 when the user cancels; the settings are not checked again.
   When: at the start of a transfer or of a listing whose connection settings are incomplete, when messages are enabled
   and the transport is 8, 9, 14 or 15.
   Failure: 0 ends the transfer without a word before it begins; the listing gives 3. */
uint32_t ZHST_CALL zhstConnectionDialog(ZhstSession session, ZhstModule module, ZhstWindow owner);

ZHST_END_C

#endif
