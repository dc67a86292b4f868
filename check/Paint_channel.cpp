#include "check/Paint_channel.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory>

#include <nlohmann/json.hpp>

#include "calc/RuntimeFault.h"
#include "platform/Partner.h"

namespace tarnvik {

namespace {

using Json = nlohmann::json;

constexpr std::string_view where_called = "Paint_channel";

// What answers to a call have in front.
constexpr const char* width_answer = "width";
constexpr const char* written_answer = "written";
constexpr const char* fault_answer = "fault";

// The number behind the name of an expected answer.
double Answer(PaintChannel& channel, const char* name, std::string_view where) {
    const std::optional<Json> answer = channel.Receive();
    if (!answer || answer->size() != 2 || !answer->at(0).is_string() || !answer->at(1).is_number()) {
        Raise(fault_path_access, where); // it ended without a word
    }
    if (answer->at(0) == fault_answer) {
        Raise(answer->at(1).get<int>(), where);
    }
    if (answer->at(0) != name) {
        Raise(fault_path_access, where);
    }
    return answer->at(1).get<double>();
}

class SendingTarget final : public PrintTarget {
public:
    explicit SendingTarget(PaintChannel& channel) : channel_(channel) {}

    void ScaleLeft(float x) override { Call("ScaleLeft", x); }
    void ScaleTop(float y) override { Call("ScaleTop", y); }
    void ScaleWidth(float width) override { Call("ScaleWidth", width); }
    void ScaleHeight(float height) override { Call("ScaleHeight", height); }
    void CurrentX(float x) override { Call("CurrentX", x); }
    void CurrentY(float y) override { Call("CurrentY", y); }
    void FontName(std::string_view name) override { Call("FontName", name); }
    void FontSize(float points) override { Call("FontSize", points); }
    void FontBold(bool on) override { Call("FontBold", on); }
    void FontItalic(bool on) override { Call("FontItalic", on); }
    void DrawWidth(std::int16_t pixels) override { Call("DrawWidth", pixels); }
    void Line(float x1, float y1, float x2, float y2) override { Call("Line", x1, y1, x2, y2); }
    void PaintPicture(std::string_view picture, float x, float y, float width, float height) override {
        Call("PaintPicture", picture, x, y, width, height);
    }
    float TextWidth(std::string_view text) override {
        Call("TextWidth", text);
        return static_cast<float>(Answer(channel_, width_answer, where_called));
    }
    void Print(std::string_view text) override { Call("Print", text); }
    void NewPage() override { Call("NewPage"); }
    void EndDoc() override { Call("EndDoc"); }

private:
    template <class... Arguments> void Call(const char* name, const Arguments&... arguments) {
        channel_.Send(Json::array({name, arguments...}));
    }

    PaintChannel& channel_;
};

// The arguments of a call as it came; those that are not there or of another kind are a fault.
class Arguments {
public:
    explicit Arguments(const Json& call) : call_(call) {}

    [[nodiscard]] float Number(std::size_t i) const {
        const Json& value = At(i);
        if (!value.is_number()) {
            Raise(fault_type_mismatch, where_called);
        }
        return value.get<float>();
    }
    [[nodiscard]] bool Flag(std::size_t i) const {
        if (!At(i).is_boolean()) {
            Raise(fault_type_mismatch, where_called);
        }
        return At(i).get<bool>();
    }
    [[nodiscard]] const std::string& Text(std::size_t i) const {
        if (!At(i).is_string()) {
            Raise(fault_type_mismatch, where_called);
        }
        return At(i).get_ref<const std::string&>();
    }

private:
    [[nodiscard]] const Json& At(std::size_t i) const {
        if (!call_.is_array() || i >= call_.size()) {
            Raise(fault_type_mismatch, where_called);
        }
        return call_[i];
    }

    const Json& call_;
};

struct CallRow {
    std::string_view name;
    void (*carry_out)(PrintTarget& target, const Arguments& a, PaintChannel& channel);
};

// clang-format off
constexpr std::array call_rows{
    CallRow{"ScaleLeft",    [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.ScaleLeft(a.Number(1)); }},
    CallRow{"ScaleTop",     [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.ScaleTop(a.Number(1)); }},
    CallRow{"ScaleWidth",   [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.ScaleWidth(a.Number(1)); }},
    CallRow{"ScaleHeight",  [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.ScaleHeight(a.Number(1)); }},
    CallRow{"CurrentX",     [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.CurrentX(a.Number(1)); }},
    CallRow{"CurrentY",     [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.CurrentY(a.Number(1)); }},
    CallRow{"FontName",     [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.FontName(a.Text(1)); }},
    CallRow{"FontSize",     [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.FontSize(a.Number(1)); }},
    CallRow{"FontBold",     [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.FontBold(a.Flag(1)); }},
    CallRow{"FontItalic",   [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.FontItalic(a.Flag(1)); }},
    CallRow{"DrawWidth",    [](PrintTarget& t, const Arguments& a, PaintChannel&) {
        t.DrawWidth(static_cast<std::int16_t>(a.Number(1))); }},
    CallRow{"Line",         [](PrintTarget& t, const Arguments& a, PaintChannel&) {
        t.Line(a.Number(1), a.Number(2), a.Number(3), a.Number(4)); }},
    CallRow{"PaintPicture", [](PrintTarget& t, const Arguments& a, PaintChannel&) {
        t.PaintPicture(a.Text(1), a.Number(2), a.Number(3), a.Number(4), a.Number(5)); }},
    CallRow{"TextWidth",    [](PrintTarget& t, const Arguments& a, PaintChannel& channel) {
        channel.Send(Json::array({width_answer, t.TextWidth(a.Text(1))})); }},
    CallRow{"Print",        [](PrintTarget& t, const Arguments& a, PaintChannel&) { t.Print(a.Text(1)); }},
    CallRow{"NewPage",      [](PrintTarget& t, const Arguments&, PaintChannel&) { t.NewPage(); }},
    CallRow{"EndDoc",       [](PrintTarget& t, const Arguments&, PaintChannel&) { t.EndDoc(); }},
};
// clang-format on

// All calls up to the end of the document.
void Carry_out(PrintTarget& target, PaintChannel& channel) {
    while (const std::optional<Json> call = channel.Receive()) {
        const Arguments arguments{*call};
        const auto* const row = std::find_if(call_rows.begin(), call_rows.end(),
                                             [&](const CallRow& one) { return one.name == arguments.Text(0); });
        if (row == call_rows.end()) {
            Raise(fault_type_mismatch, where_called);
        }
        row->carry_out(target, arguments, channel);
        if (row->name == "EndDoc") {
            return;
        }
    }
    Raise(fault_path_access, where_called); // the tool gave the report up
}

void Serve(PaintChannel& channel, const std::function<int()>& work) {
    try {
        channel.Send(Json::array({written_answer, work()}));
    } catch (const RuntimeFault& fault) {
        channel.Send(Json::array({fault_answer, fault.number}));
    }
    channel.Flush();
}

} // namespace

PaintChannel::~PaintChannel() {
    Close_channel(channel_);
}

void PaintChannel::Send(const Json& line) {
    out_ += line.dump(-1, ' ', false, Json::error_handler_t::replace);
    out_ += '\n';
}

void PaintChannel::Flush() {
    std::string_view rest = out_;
    while (!rest.empty()) {
        const long sent = Send_some(channel_, rest);
        if (sent <= 0) {
            break; // the other side is gone: the next Receive tells
        }
        rest.remove_prefix(static_cast<std::size_t>(sent));
    }
    out_.clear();
}

std::optional<Json> PaintChannel::Receive() {
    Flush();
    std::size_t end = in_.find('\n');
    while (end == std::string::npos) {
        std::array<char, 4096> block; // NOLINT(cppcoreguidelines-pro-type-member-init): read as far as it is filled
        const long count = Receive_some(channel_, block.data(), block.size());
        if (count <= 0) {
            return std::nullopt;
        }
        const std::size_t before = in_.size();
        in_.append(block.data(), static_cast<std::size_t>(count));
        end = in_.find('\n', before);
    }
    Json line = Json::parse(in_.begin(), in_.begin() + static_cast<std::ptrdiff_t>(end), nullptr, false);
    in_.erase(0, end + 1);
    if (!line.is_array()) {
        Raise(fault_path_access, where_called);
    }
    return line;
}

int Written(PaintChannel& channel, std::string_view where) {
    return static_cast<int>(Answer(channel, written_answer, where));
}

std::unique_ptr<PrintTarget> Sending_target(PaintChannel& channel) {
    return std::make_unique<SendingTarget>(channel);
}

void Serve_pictures(PaintChannel& channel, Rendering& rendering, const std::filesystem::path& folder) {
    Serve(channel, [&] { return rendering.Write_pictures(folder); });
}

void Serve_report(PaintChannel& channel, Rendering& rendering, const std::filesystem::path& file,
                  const std::string& title) {
    Serve(channel, [&] {
        rendering.Write_report(file, title,
                               [&](PrintTarget& target, const Moment& /*now*/) { Carry_out(target, channel); });
        return 1;
    });
}

} // namespace tarnvik
