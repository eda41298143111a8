#include "version.h"

#include "codepages/codepages.h"
#include "codepages/contents.h"
#include "pc_text.h"

namespace {

std::string codePageLine() {
    std::string error;
    if (!codepages::load(codePageDataFile(), &error)) return "none: " + error;
    const codepages::Contents contents = codepages::contents();
    return std::to_string(contents.hostPages) + " of hosts, " + std::to_string(contents.pcPages) +
           " of PCs, made from " + contents.origin;
}

}  // namespace

std::string versionText() { return "z7xfer " Z7X_VERSION "\ncommit: " Z7X_COMMIT "\ncode pages: " + codePageLine(); }
