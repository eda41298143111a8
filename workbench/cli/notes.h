#pragma once

#include <string>
#include <vector>

// Something worth knowing of a transfer, in UTF-8.
struct Note {
    std::string text;
    std::string advice;  // what the user can do about it
};

// What the program tells of its own accord, on standard error like the library's messages: each note once.
class Notes {
public:
    void tell(const Note& note);
    const std::vector<Note>& told() const { return told_; }

private:
    std::vector<Note> told_;
};
