#ifndef Z7XFRPCS_TEXT_DISPLAY_H
#define Z7XFRPCS_TEXT_DISPLAY_H

#include "Z7XFRPCS/types.h"

/* Text display services: a paged table window. */

/* Called with the context of the parameter record; always returns 1. */
typedef uint32_t(ZHST_CALL* ZhstDisplayNotification)(void* context);

typedef struct ZhstTextDisplayParameters {
    ZhstWindow owner;
    ZhstSession session;
    const char* title;
    ZhstDisplayNotification more; /* the user asks for the next page */
    uint32_t reserved;
    ZhstDisplayNotification close; /* the user closes the window */
    void* context;
} ZhstTextDisplayParameters;
static_assert(sizeof(void*) != 4 || sizeof(ZhstTextDisplayParameters) == 28, "seven words");
static_assert(sizeof(void*) != 4 ||
                  (offsetof(ZhstTextDisplayParameters, title) == 8 && offsetof(ZhstTextDisplayParameters, more) == 12 &&
                   offsetof(ZhstTextDisplayParameters, close) == 20 &&
                   offsetof(ZhstTextDisplayParameters, context) == 24),
              "in order");

enum ZhstAlignment {
    ZhstAlignLeft = 0,
    ZhstAlignRight = 2,
};

#ifdef __cplusplus
extern "C" {
#endif

/* 0 when it cannot be created. */
ZhstTextDisplay ZHST_CALL zhstTextDisplayCreate(const ZhstTextDisplayParameters* parameters);
void ZHST_CALL zhstTextDisplayDestroy(ZhstTextDisplay display);
/* Non-zero when the table is prepared. */
uint32_t ZHST_CALL zhstTextDisplayBegin(ZhstTextDisplay display, int32_t rowsPerPage, uint32_t reserved);
/* `width` is in characters. */
void ZHST_CALL zhstTextDisplayAddColumn(ZhstTextDisplay display, uint32_t index, const char* title, uint32_t width,
                                        uint32_t alignment);
ZhstTextRow ZHST_CALL zhstTextDisplayAddRow(ZhstTextDisplay display, uint32_t reserved);
void ZHST_CALL zhstTextDisplaySetCell(ZhstTextDisplay display, const char* text, ZhstTextRow row, uint32_t column);
void ZHST_CALL zhstTextDisplaySetStatus(ZhstTextDisplay display, const char* text);
/* No more rows follow. */
void ZHST_CALL zhstTextDisplayEnd(ZhstTextDisplay display);

#ifdef __cplusplus
}
#endif

#endif
