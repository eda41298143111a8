#ifndef Z7XFRPCS_CONVERSION_H
#define Z7XFRPCS_CONVERSION_H

#include "Z7XFRPCS/types.h"

/* Conversion services of the emulator. */

enum ZhstConversion {
    ZhstPcToHost = 0,
    ZhstHostToPc = 1,
};

#ifdef __cplusplus
extern "C" {
#endif

ZhstConverter ZHST_CALL zhstGetEmulatorConverter(ZhstSession session);
ZhstTextServices ZHST_CALL zhstGetTextServices(ZhstSession session);
/* Converts `length` bytes in place between the session's host code page and the PC's; 0 for success. A refusal ends the
   record without a word of the library's: the converter tells the user. */
uint32_t ZHST_CALL zhstConvertHostText(ZhstConverter converter, uint32_t direction, uint32_t length, void* buffer);

#ifdef __cplusplus
}
#endif

#endif
