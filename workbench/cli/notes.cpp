#include "notes.h"

#include <algorithm>
#include <iostream>

#include "pc_text.h"

void Notes::tell(const Note& note) {
    const auto isSame = [&](const Note& each) { return each.text == note.text; };
    if (std::any_of(told_.begin(), told_.end(), isSame)) return;
    told_.push_back(note);
    std::cerr << "z7xfer: note: " << withoutControls(note.text) << "\n    " << withoutControls(note.advice)
              << std::endl;
}
