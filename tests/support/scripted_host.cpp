#include "support/scripted_host.h"

#include "support/host_record.h"

using scripted::Answer;

namespace {

bool beginsWith(const std::string& text, const std::string& beginning) { return text.rfind(beginning, 0) == 0; }

}  // namespace

void ScriptedHost::install() {
    scripted::setHandler([this](const scripted::Call& call) { return answer(call); });
}

Answer ScriptedHost::answer(const scripted::Call& call) {
    if (call.function == TF_SEND_REQUEST) statements.push_back(call.request);
    if (call.function == TF_PUT_DATA) received.push_back(call.request);
    if (observe) observe(call);
    if (auto act = acts_.extract(call.function)) act.mapped()();
    if (intercept)
        if (auto other = intercept(call)) return *other;
    switch (call.function) {
        case TF_SEND_REQUEST:
            return begin(call.request);
        case TF_GET_FIELD:
            return nextField();
        case TF_GET_DATA:
            return nextData();
        default:
            return scripted::defaultAnswer(call);
    }
}

Answer ScriptedHost::begin(const std::string& statement) {
    if (beginsWith(statement, "SELECT COUNT(*)"))
        request_ = Request::Count;
    else
        request_ = beginsWith(statement, "EXTRACT") ? Request::Catalogue : Request::Data;
    nextField_ = nextData_ = 0;
    return {};
}

Answer ScriptedHost::nextField() {
    if (nextField_ == fields.size()) return Answer::code(TF_NO_MORE_DATA);
    return Answer::data(fields[nextField_++]);
}

Answer ScriptedHost::nextData() {
    if (request_ == Request::Count) {
        if (nextData_++ != 0) return Answer::code(TF_NO_MORE_DATA);
        const std::uint32_t number = count.value_or(static_cast<std::uint32_t>(records.size()));
        return Answer::data(HostRecord().binary(number, 4));
    }
    const auto& source = request_ == Request::Catalogue ? catalogue : records;
    if (nextData_ == source.size()) return Answer::code(TF_NO_MORE_DATA);
    return Answer::data(source[nextData_++]);
}
