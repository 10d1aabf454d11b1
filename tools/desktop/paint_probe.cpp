// Times how long a window takes to appear fully painted on an X server.
//
//   paint-probe launch NAME POINTS -- PROGRAM [ARGS...]
//       starts PROGRAM and waits until a viewable window titled NAME shows every sample point;
//   paint-probe key KEYS NAME POINTS
//       presses KEYS (for example alt+d) through the XTEST extension and waits the same way;
//   paint-probe wait NAME POINTS
//       only waits.
//
// POINTS is a comma-separated list of x:y:rrggbb, relative to the window's client area; a point
// matches when each channel is within 12 of the colour. Prints the milliseconds from the launch
// or the key press to the first moment every point matched (and, for launch, the child's pid on
// a second line). Exits 1 when nothing matched within the timeout (MARIVALE_PROBE_TIMEOUT_MS,
// default 10000) and prints what the points showed last.

// Standard library
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

// System
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

struct Point {
    int x{0};
    int y{0};
    unsigned long rgb{0};
};

std::vector<Point> parsePoints(const char* text) {
    std::vector<Point> points;
    std::string all(text);
    std::size_t start = 0;
    while (start < all.size()) {
        std::size_t end = all.find(',', start);
        if (end == std::string::npos) {
            end = all.size();
        }
        Point p;
        char colour[16] = {0};
        if (std::sscanf(all.substr(start, end - start).c_str(), "%d:%d:%15s", &p.x, &p.y, colour) ==
            3) {
            p.rgb = std::strtoul(colour, nullptr, 16);
            points.push_back(p);
        }
        start = end + 1;
    }
    return points;
}

bool titled(Display* display, Window window, const char* name) {
    char* title = nullptr;
    bool same = false;
    if (XFetchName(display, window, &title) != 0 && title != nullptr) {
        same = std::strcmp(title, name) == 0;
        XFree(title);
    }
    return same;
}

// The first viewable window titled `name` below `parent`, or 0.
Window findWindow(Display* display, Window parent, const char* name) {
    Window root = 0;
    Window up = 0;
    Window* children = nullptr;
    unsigned int count = 0;
    if (XQueryTree(display, parent, &root, &up, &children, &count) == 0) {
        return 0;
    }
    Window found = 0;
    for (unsigned int i = 0; i < count && found == 0; ++i) {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(display, children[i], &attributes) == 0 ||
            attributes.map_state != IsViewable) {
            continue;
        }
        if (titled(display, children[i], name)) {
            found = children[i];
        } else {
            found = findWindow(display, children[i], name);
        }
    }
    if (children != nullptr) {
        XFree(children);
    }
    return found;
}

bool nearColour(unsigned long a, unsigned long b) {
    for (int shift = 0; shift <= 16; shift += 8) {
        const int ca = static_cast<int>((a >> shift) & 0xff);
        const int cb = static_cast<int>((b >> shift) & 0xff);
        if (std::abs(ca - cb) > 12) {
            return false;
        }
    }
    return true;
}

// Reads the points off the screen; true when every one shows its colour.
bool painted(Display* display, Window window, const std::vector<Point>& points, std::string& seen) {
    XWindowAttributes attributes;
    if (XGetWindowAttributes(display, window, &attributes) == 0) {
        return false;
    }
    bool all = true;
    seen.clear();
    for (const Point& p : points) {
        if (p.x >= attributes.width || p.y >= attributes.height) {
            seen += " outside";
            all = false;
            continue;
        }
        XImage* image = XGetImage(display, window, p.x, p.y, 1, 1, AllPlanes, ZPixmap);
        if (image == nullptr) {
            return false;
        }
        const unsigned long pixel = XGetPixel(image, 0, 0) & 0xffffff;
        XDestroyImage(image);
        char text[16];
        std::snprintf(text, sizeof text, " %06lx", pixel);
        seen += text;
        all = all && nearColour(pixel, p.rgb);
    }
    return all;
}

using FakeKey = int (*)(Display*, unsigned int, int, unsigned long);

// Presses and releases a chord such as "alt+d" or "F2" through XTEST.
bool pressKeys(Display* display, const char* chord) {
    void* library = dlopen("libXtst.so.6", RTLD_NOW);
    auto fake = library != nullptr ? reinterpret_cast<FakeKey>(dlsym(library, "XTestFakeKeyEvent"))
                                   : nullptr;
    if (fake == nullptr) {
        std::fprintf(stderr, "paint-probe: libXtst.so.6 is not available\n");
        return false;
    }
    std::vector<unsigned int> codes;
    std::string all(chord);
    std::size_t start = 0;
    while (start <= all.size()) {
        std::size_t end = all.find('+', start);
        if (end == std::string::npos) {
            end = all.size();
        }
        std::string name = all.substr(start, end - start);
        if (name == "alt") {
            name = "Alt_L";
        } else if (name == "ctrl") {
            name = "Control_L";
        } else if (name == "shift") {
            name = "Shift_L";
        }
        const KeySym sym = XStringToKeysym(name.c_str());
        if (sym == NoSymbol) {
            std::fprintf(stderr, "paint-probe: unknown key %s\n", name.c_str());
            return false;
        }
        codes.push_back(XKeysymToKeycode(display, sym));
        start = end + 1;
    }
    for (const unsigned int code : codes) {
        fake(display, code, True, 0);
    }
    for (auto it = codes.rbegin(); it != codes.rend(); ++it) {
        fake(display, *it, False, 0);
    }
    XFlush(display);
    return true;
}

// Windows come and go while the probe looks at them; a failed request only means "not yet".
int ignoreErrors(Display*, XErrorEvent*) {
    return 0;
}

int usage() {
    std::fprintf(stderr, "usage: paint-probe launch NAME POINTS -- PROGRAM [ARGS...]\n"
                         "       paint-probe key KEYS NAME POINTS\n"
                         "       paint-probe wait NAME POINTS\n");
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        return usage();
    }
    const std::string mode = argv[1];
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        std::fprintf(stderr, "paint-probe: no X display\n");
        return 2;
    }
    fcntl(ConnectionNumber(display), F_SETFD, FD_CLOEXEC);
    XSetErrorHandler(ignoreErrors);
    const char* name = nullptr;
    const char* pointText = nullptr;
    const char* timeoutText = std::getenv("MARIVALE_PROBE_TIMEOUT_MS");
    const auto timeout = std::chrono::milliseconds(timeoutText ? std::atoi(timeoutText) : 10000);
    Clock::time_point start;
    pid_t child = 0;
    if (mode == "launch" && argc >= 6 && std::strcmp(argv[4], "--") == 0) {
        name = argv[2];
        pointText = argv[3];
        start = Clock::now();
        child = fork();
        if (child == 0) {
            execvp(argv[5], argv + 5);
            _exit(127);
        }
    } else if (mode == "key" && argc == 5) {
        name = argv[3];
        pointText = argv[4];
        start = Clock::now();
        if (!pressKeys(display, argv[2])) {
            return 2;
        }
    } else if (mode == "wait" && argc == 4) {
        name = argv[2];
        pointText = argv[3];
        start = Clock::now();
    } else {
        return usage();
    }
    const std::vector<Point> points = parsePoints(pointText);
    std::string seen = " (no window)";
    while (Clock::now() - start < timeout) {
        const Window window = findWindow(display, DefaultRootWindow(display), name);
        if (window != 0 && painted(display, window, points, seen)) {
            const double ms =
                std::chrono::duration<double, std::milli>(Clock::now() - start).count();
            std::printf("%.1f\n", ms);
            if (child != 0) {
                std::printf("%d\n", static_cast<int>(child));
            }
            XCloseDisplay(display);
            return 0;
        }
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
    std::fprintf(stderr, "paint-probe: '%s' not painted after %lld ms; points showed%s\n", name,
                 static_cast<long long>(timeout.count()), seen.c_str());
    if (child != 0) {
        std::printf("-1\n%d\n", static_cast<int>(child));
    }
    XCloseDisplay(display);
    return 1;
}
