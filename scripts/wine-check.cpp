// Tells whether a Wine is of use to the program: prints a line for each thing that it lacks and ends with exit code 0
// when that is nothing. Started by wine-setup on a screen of its own, with the settings of lib-wine-prefix.sh; the
// argument is a text to print, for which a default printer has to be there.
//
// Built for 32 bits, so that a Wine without 32-bit programs does not run it at all.
#include <windows.h>

#include <winspool.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

static_assert(sizeof(void*) == 4);

namespace {

class Check {
  public:
    int run(const char* text) {
        metrics();
        fonts();
        screen();
        printer(text);
        return lacking_ == 0 ? 0 : 1;
    }

  private:
    void require(bool fulfilled, const std::string& lack) {
        if (fulfilled) return;
        std::printf("%s\n", lack.c_str());
        ++lacking_;
    }
    void metrics();
    void metric(const char* name, int index, int at100, int at150);
    void fonts();
    void font(const wchar_t* face, const char* name, bool fixedPitch);
    void screen();
    void printer(const char* text);

    int lacking_ = 0;
};

// A Wine that adds a pixel of its own is as good; one that kept nonsense from its first start is not.
void Check::metric(const char* name, int index, int at100, int at150) {
    const int found = GetSystemMetrics(index);
    const int scaled = GetSystemMetricsForDpi(index, 144);
    require(found >= at100 && found <= at100 + 1, std::string(name) + " of " + std::to_string(found) +
                                                      " pixels instead of " + std::to_string(at100));
    require(scaled >= at150 && scaled <= at150 + 2, std::string(name) + " of " + std::to_string(scaled) +
                                                        " pixels at 150 % instead of " +
                                                        std::to_string(at150));
}

void Check::metrics() {
    metric("menu bars", SM_CYMENU, 19, 28);
    metric("title bars", SM_CYCAPTION, 19, 28);
    metric("small title bars", SM_CYSMCAPTION, 16, 23);
    metric("title bar buttons", SM_CXSIZE, 18, 27);
    metric("vertical scroll bars", SM_CXVSCROLL, 17, 25);
    metric("horizontal scroll bars", SM_CYHSCROLL, 17, 25);
    metric("borders", SM_CXBORDER, 1, 1);
    NONCLIENTMETRICSW all{};
    all.cbSize = sizeof all;
    require(SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof all, &all, 0) != FALSE, "window metrics");
    for (const LOGFONTW* one : {&all.lfMessageFont, &all.lfMenuFont, &all.lfCaptionFont}) {
        require(one->lfHeight == -11 && one->lfFaceName[0] != 0,
                "fonts of windows of " + std::to_string(-one->lfHeight) + " pixels instead of 11");
    }
}

void Check::font(const wchar_t* face, const char* name, bool fixedPitch) {
    constexpr int side = 64;
    constexpr const wchar_t* sample = L"\u00C5g";
    const HDC memory = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateBitmap(side, side, 1, 1, nullptr);
    SelectObject(memory, bitmap);
    const HFONT font = CreateFontW(-16, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0,
                                   fixedPitch ? FIXED_PITCH | FF_MODERN : VARIABLE_PITCH | FF_SWISS, face);
    SelectObject(memory, font);
    TEXTMETRICW size{};
    GetTextMetricsW(memory, &size);
    require(size.tmHeight >= 14 && size.tmHeight <= 32, std::string("a face for ") + name);
    PatBlt(memory, 0, 0, side, side, WHITENESS);
    TextOutW(memory, 0, 0, sample, 2);
    int inked = 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            inked += GetPixel(memory, x, y) == RGB(0, 0, 0) ? 1 : 0;
    }
    require(inked > 20, std::string("letters that show in ") + name);
    SIZE narrow{};
    SIZE broad{};
    GetTextExtentPoint32W(memory, L"iiii", 4, &narrow);
    GetTextExtentPoint32W(memory, L"MMMM", 4, &broad);
    require((narrow.cx == broad.cx) == fixedPitch,
            std::string("a face of ") + (fixedPitch ? "fixed" : "varying") + " pitch for " + name);
    DeleteDC(memory);
    DeleteObject(bitmap);
    DeleteObject(font);
}

void Check::fonts() {
    font(L"Tahoma", "Tahoma", false);
    font(L"MS Shell Dlg", "MS Shell Dlg", false);
    font(L"Segoe UI", "Segoe UI", false);
    font(L"Arial", "Arial", false);
    font(L"Courier New", "Courier New", true);
}

// A window with a title bar and a menu shows its client area, and what is drawn on it is on the screen.
void Check::screen() {
    const HMENU bar = CreateMenu();
    AppendMenuW(bar, MF_STRING, 1, L"Arkiv");
    const HWND window = CreateWindowW(L"STATIC", L"Prov", WS_OVERLAPPEDWINDOW | SS_BLACKRECT, 10, 10, 300,
                                      200, nullptr, bar, nullptr, nullptr);
    require(window != nullptr, "windows on the display");
    if (window == nullptr) return;
    ShowWindow(window, SW_SHOW);
    UpdateWindow(window);
    // The display draws in its own time.
    const ULONGLONG end = GetTickCount64() + 10'000;
    RECT client{};
    bool drawn = false;
    while (!drawn && GetTickCount64() < end) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
        GetClientRect(window, &client);
        POINT middle{client.right / 2, client.bottom / 2};
        ClientToScreen(window, &middle);
        const HDC display = GetDC(nullptr);
        // SS_BLACKRECT is filled with the colour of window frames.
        drawn = GetPixel(display, middle.x, middle.y) == GetSysColor(COLOR_3DDKSHADOW);
        ReleaseDC(nullptr, display);
        Sleep(20);
    }
    require(client.right >= 280 && client.right <= 300 && client.bottom >= 140 && client.bottom <= 180,
            "room in a window with a menu: " + std::to_string(client.right) + " x " +
                std::to_string(client.bottom) + " pixels of 300 x 200");
    require(drawn, "windows that can be seen");
    DestroyWindow(window);
}

void Check::printer(const char* text) {
    DWORD needed = 0;
    DWORD count = 0;
    EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 4, nullptr, 0, &needed, &count);
    std::vector<BYTE> list(std::max<DWORD>(needed, 1));
    EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 4, list.data(), needed, &needed,
                  &count);
    wchar_t name[MAX_PATH] = L"";
    DWORD length = MAX_PATH;
    const bool known = count > 0 && GetDefaultPrinterW(name, &length);
    require(known, "printing (its 32-bit part finds no printer of CUPS: libcups2)");
    if (!known) return;
    const HDC paper = CreateDCW(nullptr, name, nullptr, nullptr);
    DOCINFOW document{};
    document.cbSize = sizeof document;
    document.lpszDocName = L"Prov";
    const std::wstring letters(text, text + std::string(text).size());
    bool printed = paper != nullptr && GetDeviceCaps(paper, HORZRES) > 0 && StartDocW(paper, &document) > 0 &&
                   StartPage(paper) > 0;
    printed = printed && TextOutW(paper, 500, 500, letters.c_str(), static_cast<int>(letters.size()));
    printed = printed && EndPage(paper) > 0 && EndDoc(paper) > 0;
    require(printed, "printing (the printer is there, but takes no document)");
    DeleteDC(paper);
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) return 2;
    return Check().run(arguments[1]);
}
