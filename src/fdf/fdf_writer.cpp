#include "fdf/fdf_writer.h"

#include <cstdio>

#include "Z7XFRPCS/settings.h"
#include "fdf/code_tables.h"
#include "fdf/fdf_path.h"
#include "monitor/monitor_store.h"
#include "settings/pc_file_types.h"
#include "settings/transfer_settings.h"

namespace fdf {
namespace {

namespace id = zhst::setting;

constexpr std::uint32_t LineSize = 256;  // more than any text needs: a name has at most 29 characters

// Written and published; false when the write failed.
bool writeText(const client::TransferContext& context, services::FileObject& file, const char* text, int length) {
    if (!file.write(text, static_cast<std::uint32_t>(length))) return false;
    if (context.monitorStore) context.monitorStore->recordReceiveDescription({text, static_cast<std::size_t>(length)});
    return true;
}

// An option without a code is written as -1, which no reader takes; only the decimal separator has a sign for none.
bool writeHead(const client::TransferContext& context, services::FileObject& file) {
    const settings::TransferSettings& options = *context.transferSettings;
    const std::int32_t decimal = valueToFdfCode(FdfDecimalSeparators, options.decimalSeparatorMode);
    char decimalText[12] = "*";
    if (decimal != NoCode) std::snprintf(decimalText, sizeof(decimalText), "%d", decimal);
    char text[LineSize];
    const int length = std::snprintf(text, sizeof(text), "%s\r\n%s %d\r\n%s %d,%d,%d,%d,%s\r\n", "PCFDF", "PCFT",
                                     valueToFdfCode(FdfFileTypes, options.receiveFileType), "PCFO",
                                     valueToFdfCode(FdfTimeFormats, options.timeFormat),
                                     valueToFdfCode(FdfTimeSeparators, options.timeSeparator),
                                     valueToFdfCode(FdfDateFormats, options.dateFormat),
                                     valueToFdfCode(FdfDateSeparators, options.dateSeparator), decimalText);
    return writeText(context, file, text, length);
}

// The length as the PC file has it: of a number in a text file the declared digits, with room for sign and point unless
// FdfNumericLengthMode says otherwise.
void formatLength(const record::HostField& field, bool isText, services::SettingsHandle settings, char (&text)[32]) {
    if (field.isCharacter() || !isText) {
        std::snprintf(text, sizeof(text), "%d", static_cast<int>(field.length()));
        return;
    }
    // Read live, and for every number: the snapshot does not have it.
    const int extra = services::GetSetting(settings, id::FdfNumericLengthMode) == 0 ? 1 : 0;
    const int digits = static_cast<int>(field.precision()) + extra;
    if (field.decimals() > 0)
        std::snprintf(text, sizeof(text), "%d/%d", digits + extra, field.decimals());
    else
        std::snprintf(text, sizeof(text), "%d", digits);
}

void writeFdfFieldLines(const client::TransferContext& context, const record::HostLayout& layout,
                        services::FileObject& file) {
    const settings::PcFileTypeRow& type = layout.rules().type;
    for (const record::PlannedField& each : layout) {
        char length[32];
        formatLength(each.field, type.isText(), context.settings, length);
        char line[LineSize];
        const int count = std::snprintf(line, sizeof(line), "%s %s %d %s\r\n", "PCFL", each.field.name(),
                                        fieldTypeCode(type, each.field.type()), length);
        if (!writeText(context, file, line, count)) return;
    }
}

}  // namespace

void writeFdf(const client::TransferContext& context, const record::HostLayout& layout, const char* pcFileName) {
    const std::int32_t mode = services::GetSetting(context.settings, id::ExistingFileAction);
    char path[PathSize];
    const services::OwnedFile file =
        resolveFdfPath(context, pcFileName, context.transferSettings->receiveDescriptionFile, path);
    if (!file) return;
    // A description is never appended to: a second header would make it unreadable.
    file->setExistingFileAction(static_cast<std::uint32_t>(mode == zhst::value::Append ? zhst::value::Replace : mode));
    if (mode == zhst::value::AskUser) file->prepareNewFile();
    if (file->openForWriting() && writeHead(context, *file)) writeFdfFieldLines(context, layout, *file);
    file->close();
}

}  // namespace fdf
