#include "fdf/fdf_writer.h"

#include <cstdio>

#include "Z7XFRPCS/settings.h"
#include "fdf/code_tables.h"
#include "fdf/fdf_path.h"
#include "settings/pc_file_types.h"

namespace fdf {
namespace {

namespace id = zhst::setting;

constexpr std::uint32_t LineSize = 256;

// Written and published; false when the write failed.
bool writeText(const record::RecordConverter& converter, services::FileObject& file, const char* text, int length) {
    if (length < 0 || !file.write(text, static_cast<std::uint32_t>(length))) return false;
    if (monitor::MonitorStore* store = converter.tfSession->monitorStore())
        store->recordReceiveDescription({text, static_cast<std::size_t>(length)});
    return true;
}

bool writeHead(const record::RecordConverter& converter, services::FileObject& file) {
    const settings::TransferSettings& options = *converter.transferSettings;
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
    return writeText(converter, file, text, length);
}

// The length as the PC file has it: of a number in a text file the declared digits, with room for sign and point unless
// FdfNumericLengthMode says otherwise.
void formatLength(const record::HostField& field, services::SettingsHandle settings, char (&text)[32]) {
    const record::FieldLength length = field.fieldLength();
    if (length.isCharacter() || !settings::isTextLike(field.transferSettings().receiveFileType)) {
        std::snprintf(text, sizeof(text), "%d", static_cast<int>(length.bytes));
        return;
    }
    const int extra = services::GetSetting(settings, id::FdfNumericLengthMode) == 0 ? 1 : 0;
    const int digits = static_cast<int>(field.precision()) + extra;
    if (length.decimals > 0)
        std::snprintf(text, sizeof(text), "%d/%d", digits + extra, length.decimals);
    else
        std::snprintf(text, sizeof(text), "%d", digits);
}

void writeFdfFieldLines(const record::RecordConverter& converter, services::FileObject& file) {
    for (const record::HostField& field : converter.fields) {
        char length[32];
        formatLength(field, converter.settings, length);
        const std::int32_t code = fieldTypeCode(converter.transferSettings->receiveFileType, field.type());
        char line[LineSize];
        const int count = std::snprintf(line, sizeof(line), "%s %s %d %s\r\n", "PCFL", field.name(), code, length);
        if (!writeText(converter, file, line, count)) return;
    }
}

}  // namespace

void writeFdf(const record::RecordConverter& converter, const char* pcFileName) {
    const client::TransferContext& context = *converter.transferContext;
    const std::int32_t mode = services::GetSetting(context.settings, id::ExistingFileAction);
    char path[PathSize];
    const services::OwnedFile file =
        resolveFdfPath(context, pcFileName, context.transferSettings->receiveDescriptionFile, path);
    if (!file) return;
    file->setName(path);
    file->setTypeFlag(0);
    file->setOpenFlags(OpenFlags);
    // A description is never appended to.
    file->setExistingFileAction(static_cast<std::uint32_t>(mode == zhst::value::Append ? zhst::value::Replace : mode));
    if (mode == zhst::value::AskUser) file->prepareNewFile();
    if (file->openForWriting() && writeHead(converter, *file)) writeFdfFieldLines(converter, *file);
    file->close();
}

}  // namespace fdf
