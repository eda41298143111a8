#pragma once

#include <string>
#include <vector>

// Records of whole transfers: texts in transfers/, a line for each thing that happened.
namespace transferrecord {

using Lines = std::vector<std::string>;

// A journal without what differs from run to run and from PC to PC: paths in `folder` begin with FOLDER, an escaped
// byte that comes several times running says how often, and a store item that was written under the lock of its list,
// which a line "taken" says, is one line. What came before in the same way is told in a line, too.
Lines settled(const Lines& journal, const std::string& folder);

// Fails with the first difference between the lines and transfers/NAME.txt. With Z7X_REWRITE_TRANSFERS in the
// environment the lines become the record instead: tools/rewrite_transfers.sh does that.
void expectRecorded(const std::string& name, const Lines& lines);

}  // namespace transferrecord
