#include "client/display_pages.h"

#include "services/text_display.h"

namespace client {

const char* DisplayPages::loadTitle() {
    messages::loadText(client_.session, zhst::text::DisplayTitle, title_);
    return title_;
}

void DisplayPages::loadPrompt() { messages::loadText(client_.session, zhst::text::DisplayMore, prompt_); }

void DisplayPages::begin() {
    client_.displayClosed = 0;
    client_.moreRequested = 1;
}

// The flag goes before the status shows: an answer that comes in while the status is set counts.
void DisplayPages::askForNextPage() {
    pageLine_ = 0;
    client_.moreRequested = 0;
    if (texts_ == Texts::LoadedAnew) loadPrompt();
    services::TextDisplaySetStatus(client_.textDisplay, prompt_);
}

bool DisplayPages::endRow() {
    if (++pageLine_ >= rowsPerPage_) askForNextPage();
    while (!client_.moreRequested && !client_.displayClosed) client_.pumpMessages();
    if (client_.displayClosed) return false;
    client_.moreRequested = 1;
    // Behind every row, not only where a prompt was shown.
    if (texts_ == Texts::LoadedAnew) loadTitle();
    services::TextDisplaySetStatus(client_.textDisplay, title_);
    return true;
}

void DisplayPages::end() {
    services::TextDisplayEnd(client_.textDisplay);
    while (!client_.displayClosed) client_.pumpMessages();
}

}  // namespace client
