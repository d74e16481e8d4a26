// A window on the display that the tests run on, its loop, and a view that writes down what reaches it.
#pragma once

#include "platform/graphics.h"
#include "platform/run_loop.h"
#include "tests/x11/display.h"

#include <functional>
#include <sstream>
#include <utility>

namespace r7::testing_x11 {

/// Writes down events as "drag 15,139 by 5,-10 x1 0x20000" and paints a picture without symmetry.
class Listener final : public View {
public:
    using View::View;

    int paints = 0;
    double mark_x = 10.0;
    /// What was heard since the last call.
    std::string heard() { return std::exchange(heard_, {}); }
    bool has_heard(std::string_view word) const { return heard_.find(word) != std::string::npos; }
    void drawRect(Graphics& graphics, const Rect&) override
    {
        ++paints;
        const ColorRef ground = Color::device_rgba(0.2, 0.4, 0.6, 1.0),
                       mark = Color::device_rgba(1.0, 0.5, 0.0, 1.0);
        graphics.fill_rect(bounds(), ground.get(), Compositing::copy);
        graphics.fill_rect({mark_x, 20.0, 30.0, 5.0}, mark.get(), Compositing::copy);
    }
    void mouseDown(const MouseEvent& e) override { note("down", e); }
    void mouseDragged(const MouseEvent& e) override { note("drag", e); }
    void mouseUp(const MouseEvent& e) override { note("up", e); }
    void rightMouseDown(const MouseEvent& e) override { note("right down", e); }
    void rightMouseDragged(const MouseEvent& e) override { note("right drag", e); }
    void rightMouseUp(const MouseEvent& e) override { note("right up", e); }
    void scrollWheel(const ScrollEvent& e) override { note("wheel", e); }

private:
    void note(std::string_view what, const auto& e)
    {
        std::ostringstream line;
        line << what << ' ' << e.location_in_window.x << ',' << e.location_in_window.y << " by " << e.delta_x
             << ',' << e.delta_y;
        if constexpr (requires { e.click_count; }) line << " x" << e.click_count;
        if (e.modifiers != Modifiers::none)
            line << " 0x" << std::hex << static_cast<std::uint32_t>(e.modifiers);
        heard_ += line.str() + '\n';
    }

    std::string heard_;
};

/// An opened window of 200 by 150 points and its view; clicks count on for as long as a test may take.
struct Shown {
    std::shared_ptr<X11Window> x11;
    std::shared_ptr<Listener> view;
    bool is_embedded = false;
    int lost = 0;

    explicit Shown(RunLoop& loop, X11WindowOptions options = {})
    {
        if (options.size == Size{}) options.size = {200.0, 150.0};
        options.click_interval = std::chrono::hours(1);
        options.connection_lost = [this] { ++lost; };
        is_embedded = options.parent != 0;
        x11 = X11Window::open(options).window;
        if (!x11) throw std::runtime_error("no window");
        view = std::make_shared<Listener>(Rect{0.0, 0.0, options.size.width, options.size.height});
        x11->window().set_content_view(view);
        loop.add(x11);
    }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    Pixels on_screen(const Display& display) const
    {
        return display.pixels_of(x11->native_id(), static_cast<std::uint16_t>(x11->picture().width()),
                                 static_cast<std::uint16_t>(x11->picture().height()));
    }
    /// What the screen ought to show.
    Pixels painted() const
    {
        const auto& bytes = x11->picture().pixels();
        return pixels_from(bytes.data(), bytes.size() / 4);
    }
};

struct X11Test : testing::Test {
    SteadyClock clock;
    RunLoop loop{clock};
    Display display;

    /// Turns the loop until that is so; false where it does not become so.
    bool turn_until(const std::function<bool()>& is_so)
    {
        for (int turns = 0; turns < 300; ++turns) {
            if (is_so()) return true;
            loop.turn(std::chrono::milliseconds(50));
        }
        return is_so();
    }
    /// Puts a top-level window there, and turns until the window knows it and is painted.
    [[nodiscard]] bool settle(const Shown& shown, int x = 300, int y = 200)
    {
        if (!shown.is_embedded) display.place(shown.x11->native_id(), x, y);
        const double scale = shown.x11->scale();
        const Point origin{x / scale, (kScreenHeight - y - shown.x11->picture().height()) / scale};
        return turn_until([&] {
            return shown.x11->window().frame().origin() == origin &&
                   shown.on_screen(display) == shown.painted();
        });
    }
    /// The buttons are let go even where a test failed.
    void TearDown() override
    {
        for (const int button : {1, 3}) display.release(button);
    }

    static constexpr int kScreenHeight = 2100; // as with_xvfb.sh has it
};

} // namespace r7::testing_x11
