#pragma once

#include <cstdint>
#include <string_view>

#include "client/transfer_context.h"
#include "provider/transfer_function_session.h"
#include "record/host_field.h"
#include "services/owned.h"
#include "services/text_display.h"

namespace record {

// The host fields of a transfer, in host order. Owns them.
class HostFieldList {
public:
    HostFieldList() = default;
    ~HostFieldList();
    HostFieldList(const HostFieldList&) = delete;
    HostFieldList& operator=(const HostFieldList&) = delete;

    void append(services::Owned<HostField> field);
    bool isEmpty() const { return !first_; }
    std::int32_t count() const { return count_; }

    class Iterator {
    public:
        explicit Iterator(HostField* field) : field_(field) {}
        HostField& operator*() const { return *field_; }
        Iterator& operator++() {
            field_ = field_->next;
            return *this;
        }
        bool operator==(const Iterator&) const = default;

    private:
        HostField* field_;
    };
    Iterator begin() const { return Iterator(first_); }
    Iterator end() const { return Iterator(nullptr); }

private:
    HostField* first_ = nullptr;
    HostField* last_ = nullptr;
    std::int32_t count_ = 0;
};

// What converts the records of one transfer, in either direction: the host record layout and the buffers that are used
// for record after record. Made by the driver once the statement is accepted, released at its end.
struct RecordConverter {
    RecordConverter(services::SessionHandle owner, provider::TransferFunctionSession* functions,
                    client::TransferContext* context, settings::TransferSettings* snapshot,
                    services::TextDisplayHandle display, std::int32_t count);

    // Fetches the field descriptions of the request, with the progress dialog (0: none) showing that it does. True when
    // there is at least one. The list ends where a description or memory for it fails, which has been reported.
    bool readHostFields(services::ProgressDialogHandle dialog, bool forSend);

    // The conversions of text::CodePageState for a field. False when one fails; missing code tables have been reported,
    // other failures are the emulator's converter's.
    bool hostToPc(const char* source, char* destination, std::uint32_t length, std::uint32_t capacity,
                  std::uint32_t* convertedLength) const;
    bool pcToHost(const char* source, char* destination, std::uint32_t length, std::uint32_t destinationLength) const;

    messages::Owner messageOwner() const { return {session, settings, mainWindow}; }

    services::SessionHandle session;
    provider::TransferFunctionSession* tfSession;
    services::SettingsHandle settings;
    settings::TransferSettings* transferSettings;
    client::TransferContext* transferContext;
    provider::TfResult fieldResult;
    HostFieldList fields;
    services::WindowHandle mainWindow;

    // Receive.
    services::TextDisplayHandle textDisplay;  // 0 for output to a PC file
    std::int32_t expectedCount;               // records the query will return, as counted before
    // Text of the number being converted: the longest is a hexadecimal field as large as a record, in double quotes.
    char numberText[2 * provider::BufferSize + 3] = {};

    // Send.
    std::uint32_t recordCount = 0;     // records found so far in a text-like PC file
    services::OwnedBytes hostRecord;   // the record being built
    services::OwnedBytes fieldBuffer;  // one field's text on its way to the host code page

private:
    bool addField(std::string_view description, bool forSend, services::ProgressDialogHandle dialog);
    bool converted(std::uint32_t result) const;
};

}  // namespace record
