#pragma once

#include "as400/conversation.h"

namespace providers {

// Where a conversation finds its host, by the environment:
//
//   Z7X_HOST_DATA        the database file; otherwise sample.db beside this library or one folder above
//   Z7X_CODE_PAGES       the code pages' data file; otherwise codepages.dat, looked for in the same folders
//   Z7X_PC_CODE_PAGE     code page of request texts; otherwise UTF-8 where a text is that, else 1252
//   Z7X_HOST_CODE_PAGE   code page of catalogue lists and plain tables; otherwise 37
//   Z7X_SEND_APPENDS     1: sent records go behind those that the member has; otherwise they replace them
//   Z7X_SEND_IS_WHOLE    0 until all records of a send have come; otherwise every request that is ended is taken as
//   whole
//
// The code pages are loaded on the way. The last two are read again with each send.
as400::ConversationSetup surroundings(as400::Dialect dialect);

}  // namespace providers
