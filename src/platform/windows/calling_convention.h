#pragma once

// Services, exports, call-backs and provider entries all remove their own arguments from the stack. Which names a
// library exports is settled by its definition file, not by an attribute.
#define ZHST_CALL __stdcall
#define ZHST_EXPORT
