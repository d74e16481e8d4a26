// Reading the interface description with Expat.
#include "platform/interface_description.h"

#include <expat.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <locale>
#include <memory>
#include <optional>
#include <span>
#include <sstream>
#include <string_view>

namespace r7 {

namespace {

// A description is a page of text; what is larger is something else.
constexpr std::streamsize kMostBytes = 1 << 20;

struct Attribute {
    std::string_view name;
    std::string_view value;
};

// A decimal number. By a stream, in no country's locale, for not every Mac's from_chars reads numbers with a
// point.
std::optional<double> finite_number(std::string_view text)
{
    if (text.starts_with('+') || text.find_first_not_of("0123456789.eE+-") != text.npos) return std::nullopt;
    std::istringstream in{std::string(text)};
    in.imbue(std::locale::classic());
    double number = 0.0;
    if (!(in >> number) || !std::isfinite(number) || in.peek() != std::istringstream::traits_type::eof())
        return std::nullopt;
    return number;
}

// Takes what Expat reports, element by element; stops listening at the first problem.
class Reader {
public:
    explicit Reader(XML_Parser parser) : parser_(parser) {}

    InterfaceDescription description;
    std::string problem;

    void begin_element(std::string_view element, std::span<const Attribute> attributes)
    {
        ++depth_;
        if (!problem.empty()) return;
        attributes_ = attributes;
        used_ = 0;
        if (depth_ == 1 && element == "panel")
            read_panel();
        else if (depth_ == 2 && element == "view")
            read_view();
        else
            fail("unexpected element <" + std::string(element) + ">");
        if (problem.empty() && used_ != attributes_.size())
            fail("an attribute of <" + std::string(element) + "> is unknown");
    }

    void end_element() { --depth_; }

    void fail(const std::string& why)
    {
        if (problem.empty())
            problem = "line " + std::to_string(XML_GetCurrentLineNumber(parser_)) + ": " + why;
    }

private:
    std::optional<std::string_view> optional_text(std::string_view name)
    {
        const auto found = std::ranges::find(attributes_, name, &Attribute::name);
        if (found == attributes_.end()) return std::nullopt;
        ++used_;
        return found->value;
    }

    std::string text(std::string_view name)
    {
        const auto value = optional_text(name);
        if (!value || value->empty()) fail("no " + std::string(name));
        return std::string(value.value_or(""));
    }

    double number(std::string_view name)
    {
        const auto value = finite_number(text(name));
        if (!value) fail(std::string(name) + " is not a finite number");
        return value.value_or(0.0);
    }

    double extent(std::string_view name)
    {
        const double value = number(name);
        if (!(value > 0.0 && value <= kMostDescribedPoints)) fail(std::string(name) + " is out of range");
        return value;
    }

    void read_panel()
    {
        if (text("class") != "QmR7View") fail("the panel is not a QmR7View");
        description.panel_size = {extent("width"), extent("height")};
    }

    void read_view()
    {
        ViewDescription view;
        view.class_name = text("class");
        view.outlet = text("outlet");
        view.frame = {number("x"), number("y"), extent("width"), extent("height")};
        const std::string_view hidden = optional_text("hidden").value_or("no");
        if (hidden != "yes" && hidden != "no") fail("hidden is neither yes nor no");
        view.starts_hidden = hidden == "yes";
        if (description.find(view.outlet)) fail("outlet " + view.outlet + " stands twice");
        description.views.push_back(std::move(view));
    }

    XML_Parser parser_;
    std::span<const Attribute> attributes_;
    std::size_t used_ = 0;
    int depth_ = 0;
};

void XMLCALL on_start(void* reader, const XML_Char* element, const XML_Char** pairs)
{
    std::vector<Attribute> attributes;
    for (; *pairs; pairs += 2) attributes.push_back({pairs[0], pairs[1]});
    static_cast<Reader*>(reader)->begin_element(element, attributes);
}

void XMLCALL on_end(void* reader, const XML_Char*)
{
    static_cast<Reader*>(reader)->end_element();
}

} // namespace

const ViewDescription* InterfaceDescription::find(std::string_view outlet) const
{
    const auto view = std::ranges::find(views, outlet, &ViewDescription::outlet);
    return view == views.end() ? nullptr : &*view;
}

std::variant<InterfaceDescription, DescriptionProblem>
read_interface_description(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string content(kMostBytes + 1, '\0');
    file.read(content.data(), static_cast<std::streamsize>(content.size()));
    content.resize(static_cast<std::size_t>(file.gcount()));
    if (content.empty() || file.bad()) return DescriptionProblem{"it cannot be read, or is empty"};
    if (content.size() > kMostBytes) return DescriptionProblem{"it is too large"};

    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              &XML_ParserFree);
    if (!parser) return DescriptionProblem{"there is no memory to read it"};
    Reader reader(parser.get());
    XML_SetUserData(parser.get(), &reader);
    XML_SetElementHandler(parser.get(), &on_start, &on_end);
    const XML_Status status =
        XML_Parse(parser.get(), content.data(), static_cast<int>(content.size()), XML_TRUE);
    if (status != XML_STATUS_OK) reader.fail(XML_ErrorString(XML_GetErrorCode(parser.get())));
    if (!reader.problem.empty()) return DescriptionProblem{reader.problem};
    return std::move(reader.description);
}

} // namespace r7
