#ifndef Z7XFRPCS_TEXT_DISPLAY_H
#define Z7XFRPCS_TEXT_DISPLAY_H

#include "Z7XFRPCS/types.h"

/* Text display services: a paged table window. */

ZHST_BEGIN_C

/* What the display calls when the user acts; always returns 1.
   - context: in, the context of the parameter record */
typedef uint32_t(ZHST_CALL* ZhstDisplayNotification)(void* context);

/* What a display is made with. */
typedef struct ZhstTextDisplayParameters {
    ZhstWindow owner;              /* of the display */
    ZhstSession session;           /* the session */
    const char* title;             /* of the window */
    ZhstDisplayNotification more;  /* to be called when the user asks for the next page */
    uint32_t reserved;             /* 0 */
    ZhstDisplayNotification close; /* to be called when the user closes the window */
    void* context;                 /* for both: the client */
} ZhstTextDisplayParameters;
ZHST_CHECK_SIZE(ZhstTextDisplayParameters, 28);
ZHST_CHECK_OFFSET(ZhstTextDisplayParameters, session, 4);
ZHST_CHECK_OFFSET(ZhstTextDisplayParameters, title, 8);
ZHST_CHECK_OFFSET(ZhstTextDisplayParameters, more, 12);
ZHST_CHECK_OFFSET(ZhstTextDisplayParameters, reserved, 16);
ZHST_CHECK_OFFSET(ZhstTextDisplayParameters, close, 20);
ZHST_CHECK_OFFSET(ZhstTextDisplayParameters, context, 24);

/* Where the texts of a column stand. */
enum ZhstAlignment {
    ZhstAlignLeft = 0,  /* texts */
    ZhstAlignRight = 2, /* numbers and hexadecimal digits */
};

/* Opens the window.
   - parameters: in, what it is made with; the title is valid during the call only, the context until TextDisplayDestroy
   Result: the display, the library's until TextDisplayDestroy; 0 when it cannot be made.
   When: at the start of a transfer from the host whose output is no PC file.
   Failure: message 4436 once the query is accepted; in a demonstration nothing happens. */
ZhstTextDisplay ZHST_CALL zhstTextDisplayCreate(const ZhstTextDisplayParameters* parameters);

/* Closes the window, if the user has not, and ends the display. It notifies of nothing any more.
   - display: in, the display
   When: at the end of the transfer. */
void ZHST_CALL zhstTextDisplayDestroy(ZhstTextDisplay display);

/* Prepares an empty table.
   - display: in, the display
   - rowsPerPage: in, the setting DisplayRowsPerPage
   - reserved: in, 0
   Result: non-zero when the table is prepared.
   When: once, in front of the columns.
   Failure: message 4436, and the transfer ends; in a demonstration it is not looked at. */
uint32_t ZHST_CALL zhstTextDisplayBegin(ZhstTextDisplay display, int32_t rowsPerPage, uint32_t reserved);

/* Adds a column.
   - display: in, the display
   - index: in, from 0, without gaps
   - title: in, the name of the field
   - width: in, characters
   - alignment: in, a ZhstAlignment
   When: once for each field, in front of the first row. */
void ZHST_CALL zhstTextDisplayAddColumn(ZhstTextDisplay display, uint32_t index, const char* title, uint32_t width,
                                        uint32_t alignment);

/* Adds a row behind the others.
   - display: in, the display
   - reserved: in, 0
   Result: the row, for TextDisplaySetCell; it is not looked at.
   When: once for each record. */
ZhstTextRow ZHST_CALL zhstTextDisplayAddRow(ZhstTextDisplay display, uint32_t reserved);

/* Fills a cell.
   - display: in, the display
   - text: in, the text; may be longer than the column
   - row: in, of TextDisplayAddRow
   - column: in, its index
   When: for each field that the record reaches. */
void ZHST_CALL zhstTextDisplaySetCell(ZhstTextDisplay display, const char* text, ZhstTextRow row, uint32_t column);

/* Sets the status line.
   - display: in, the display
   - text: in, text 432 of table 7 while a full page waits for the user, else text 418
   When: behind every row; behind text 432 the library calls PumpMessages until one of the two notifications has come.
 */
void ZHST_CALL zhstTextDisplaySetStatus(ZhstTextDisplay display, const char* text);

/* No more rows follow. The window stays until the user closes it: the library calls PumpMessages until it is notified.
   - display: in, the display
   When: behind the last row. */
void ZHST_CALL zhstTextDisplayEnd(ZhstTextDisplay display);

ZHST_END_C

#endif
