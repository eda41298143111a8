#pragma once

#include "client/client_object.h"

namespace client {

// The pages of the text display that the client has open: a full one waits until the user asks for the next, and the
// status line says so.
class DisplayPages {
public:
    // A transfer loads each of the two texts once, by the calls below; the demonstration whenever it shows one.
    enum class Texts { LoadedOnce, LoadedAnew };

    // 0 and 1 rows are a page each.
    DisplayPages(ZXFRPCSCLIENT& client, std::int32_t rowsPerPage, Texts texts)
        : client_(client), rowsPerPage_(rowsPerPage), texts_(texts) {}

    // The title of the display, which is its status too while rows arrive. Valid as long as this object.
    const char* loadTitle();
    // What the status asks for when a page is full.
    void loadPrompt();

    // In front of the first row: no page is awaited, and a close of before does not count.
    void begin();
    // Behind each row. Waits when the page is full; false when the user has closed the display.
    bool endRow();
    // Behind the last row: waits until the user has closed the display.
    void end();

    std::int32_t rowsPerPage() const { return rowsPerPage_; }

private:
    void askForNextPage();

    ZXFRPCSCLIENT& client_;
    std::int32_t rowsPerPage_;
    Texts texts_;
    std::int32_t pageLine_ = 0;
    char title_[40] = {};
    char prompt_[80] = {};
};

}  // namespace client
