// How long the program takes to start: from the start of its process to the painted splash, beside an empty
// Qt window started in turn with it, and from the splash to the main window when a click ends the splash
// at once. It looks on from outside, as a client of the X server, so the program knows nothing of it.
// Run it on a screen without a window manager: xvfb-run -a build/bench/tarnival-startup-bench [RUNS]
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "mFigures.h"

namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::time_point from, Clock::time_point to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

/// Sees windows appear. The root is given a colour of its own: a window is painted when its middle shows
/// another one.
class Screen {
public:
    Screen() : connection_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(connection_) != 0)
            throw std::runtime_error("no X server answers on DISPLAY");
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
        root_ = screen->root;
        const uint32_t values[] = {RootColor, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
        xcb_change_window_attributes(connection_, root_, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
        xcb_clear_area(connection_, 0, root_, 0, 0, 0, 0);
        xcb_flush(connection_);
    }
    ~Screen() { xcb_disconnect(connection_); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// The next window that appears, once it is painted; `at` is then.
    xcb_window_t NextPainted(Clock::time_point& at) {
        const xcb_window_t window = NextMapped();
        while (!Painted(window)) usleep(PollMicroseconds);
        at = Clock::now();
        return window;
    }

    void Click(xcb_window_t window) {
        xcb_button_press_event_t event{};
        event.response_type = XCB_BUTTON_PRESS;
        event.detail = XCB_BUTTON_INDEX_1;
        event.root = root_;
        event.event = window;
        event.event_x = event.event_y = event.root_x = event.root_y = 20;
        event.same_screen = 1;
        xcb_send_event(connection_, 0, window, XCB_EVENT_MASK_BUTTON_PRESS,
                       reinterpret_cast<const char*>(&event));
        xcb_flush(connection_);
    }

    void ForgetEvents() {
        Reply<xcb_get_input_focus_reply_t> answered(
            xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr), &std::free);
        while (Reply<xcb_generic_event_t>(xcb_poll_for_event(connection_), &std::free)) {
        }
    }

private:
    static constexpr uint32_t RootColor = 0xff00ff;
    static constexpr int WaitMs = 20000;
    static constexpr int PollMicroseconds = 250;
    static constexpr uint32_t AnyDepth = 0xffffff;  // without the byte that may hold an alpha value

    xcb_window_t NextMapped() {
        const Clock::time_point start = Clock::now();
        while (Milliseconds(start, Clock::now()) < WaitMs) {
            while (Reply<xcb_generic_event_t> event{xcb_poll_for_event(connection_), &std::free}) {
                if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY) continue;
                return reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window;
            }
            pollfd waiting{xcb_get_file_descriptor(connection_), POLLIN, 0};
            (void)poll(&waiting, 1, 100);
        }
        throw std::runtime_error("no window appeared");
    }

    bool Painted(xcb_window_t window) {
        Reply<xcb_get_geometry_reply_t> size(
            xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr), &std::free);
        if (!size) throw std::runtime_error("the window has gone");
        Reply<xcb_get_image_reply_t> pixel(
            xcb_get_image_reply(connection_,
                                xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window,
                                              static_cast<int16_t>(size->width / 2),
                                              static_cast<int16_t>(size->height / 2), 1, 1, ~0U),
                                nullptr),
            &std::free);
        if (!pixel) return false;
        uint32_t color = 0;
        std::copy_n(xcb_get_image_data(pixel.get()), 4, reinterpret_cast<uint8_t*>(&color));
        return (color & AnyDepth) != RootColor;
    }

    xcb_connection_t* connection_;
    xcb_window_t root_ = 0;
};

/// A started program, in a home of its own, which goes with it.
class Process {
public:
    explicit Process(const std::string& program) {
        char home[] = "/tmp/tarnival-startup.XXXXXX";
        if (!mkdtemp(home)) throw std::runtime_error("no folder can be made under /tmp");
        home_ = home;
        process_ = fork();
        if (process_ != 0) return;
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            setenv(name, home, 1);
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        execl(program.c_str(), program.c_str(), nullptr);
        std::perror(program.c_str());
        _exit(1);
    }
    ~Process() {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
        std::filesystem::remove_all(home_);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

private:
    pid_t process_ = 0;
    std::string home_;
};

struct Times {
    std::vector<double> Splash, Main, Select;
};

void Measure(Screen& screen, const std::string& program, bool whole, Times* times) {
    screen.ForgetEvents();
    const Clock::time_point start = Clock::now();
    const Process process(program);
    Clock::time_point splash;
    const xcb_window_t window = screen.NextPainted(splash);
    Clock::time_point main, select;
    if (whole) {
        screen.Click(window);
        (void)screen.NextPainted(main);
        (void)screen.NextPainted(select);
    }
    if (!times) return;
    times->Splash.push_back(Milliseconds(start, splash));
    times->Main.push_back(Milliseconds(splash, main));
    times->Select.push_back(Milliseconds(splash, select));
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Detail(const char* what, const std::vector<double>& values) {
    mFigures::Detail(what, Median(values), "ms");
}

}  // namespace

int main(int argc, char** argv) try {
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 20;
    const std::filesystem::path folder = std::filesystem::canonical("/proc/self/exe").parent_path();
    const std::string program = folder / "tarnival";
    const std::string empty = folder / "tarnival-empty-window";

    Screen screen;
    Times programs, empties;
    // The first start of each reads its files into memory and isn't counted.
    for (int run = 0; run <= runs; ++run) {
        Measure(screen, empty, false, run == 0 ? nullptr : &empties);
        Measure(screen, program, true, run == 0 ? nullptr : &programs);
    }
    std::printf("medians of %d starts in turn\n", runs);
    Detail("process to an empty Qt window", empties.Splash);
    Detail("process to the splash", programs.Splash);
    Detail("splash, clicked at once, to the selection dialog", programs.Select);
    mFigures::Print("from the process to the splash, against an empty window",
                    Median(programs.Splash) / Median(empties.Splash), "times");
    mFigures::Print("behind the splash, until the main window stands", Median(programs.Main), "ms");
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "tarnival-startup-bench: %s\n", error.what());
    return 1;
}
