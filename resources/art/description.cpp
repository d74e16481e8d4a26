// The interface description of the panel: reading.
#include "resources/art/description.h"

#include <expat.h>

#include <algorithm>
#include <charconv>
#include <memory>

namespace r7::art {

namespace {

// One reading. The first error stops it.
class Reader final
{
public:
    std::optional<Description> read(std::string_view xml, std::string& error)
    {
        XML_SetUserData(parser_.get(), this);
        XML_SetStartElementHandler(parser_.get(), start_element);
        const auto status = XML_Parse(parser_.get(), xml.data(), static_cast<int>(xml.size()), XML_TRUE);
        if (status != XML_STATUS_OK && error_.empty()) fail(XML_ErrorString(XML_GetErrorCode(parser_.get())));
        error = error_;
        return error_.empty() ? std::optional(std::move(description_)) : std::nullopt;
    }

private:
    struct Free
    {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };
    using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free>;

    static void start_element(void* reader, const XML_Char* name, const XML_Char** attributes)
    {
        static_cast<Reader*>(reader)->start(name, attributes);
    }

    void start(std::string_view element, const XML_Char** attributes)
    {
        attributes_ = attributes;
        if (element == "panel") {
            description_.panel_class = text("class");
            description_.size = {number("width"), number("height")};
            require_room(description_.size);
        } else if (element == "view" || element == "place") {
            DescribedView view;
            if (element == "view") view.view_class = text("class");
            view.outlet = text("outlet");
            view.frame = {number("x"), number("y"), number("width"), number("height")};
            view.is_hidden = attribute("hidden") == "yes";
            require_room(view.frame.size());
            if (description_.find(view.outlet)) fail("outlet \"" + view.outlet + "\" is there twice");
            description_.views.push_back(std::move(view));
        } else {
            fail("unknown element \"" + std::string(element) + '"');
        }
    }

    void require_room(Size size)
    {
        if (Rect{0.0, 0.0, size.width, size.height}.is_empty()) fail("the frame is empty");
    }

    std::string_view attribute(std::string_view name) const
    {
        for (const XML_Char** a = attributes_; *a; a += 2)
            if (a[0] == name) return a[1];
        return {};
    }

    std::string text(std::string_view name)
    {
        const std::string_view value = attribute(name);
        if (value.empty()) fail("attribute \"" + std::string(name) + "\" is missing");
        return std::string(value);
    }

    double number(std::string_view name)
    {
        const std::string value = text(name);
        double result = 0.0;
        const auto [end, status] = std::from_chars(value.data(), value.data() + value.size(), result);
        if (status != std::errc() || end != value.data() + value.size() || !std::isfinite(result))
            fail('"' + value + "\" is no finite number");
        return result;
    }

    void fail(const std::string& what)
    {
        if (!error_.empty()) return;
        error_ = "line " + std::to_string(XML_GetCurrentLineNumber(parser_.get())) + ": " + what;
        XML_StopParser(parser_.get(), XML_FALSE);
    }

    Parser parser_{XML_ParserCreate("UTF-8")};
    const XML_Char** attributes_ = nullptr;
    Description description_;
    std::string error_;
};

} // namespace

const DescribedView* Description::find(std::string_view outlet) const
{
    const auto found = std::ranges::find(views, outlet, &DescribedView::outlet);
    return found == views.end() ? nullptr : &*found;
}

std::optional<Description> parse_description(std::string_view xml, std::string& error)
{
    return Reader().read(xml, error);
}

} // namespace r7::art
