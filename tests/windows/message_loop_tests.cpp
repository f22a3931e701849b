// Exceptions on their way from a window procedure to the message loop.
#include "shell/message_loop.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "values/errors.h"
#include "widgets/text_area.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// Fails at two messages of its own.
class FailingArea : public TextArea {
public:
    FailingArea(WindowHandle parent, std::string& heard) : TextArea(parent, 1, {}), heard_(heard) {}

protected:
    std::optional<std::intptr_t> onSimpleMessage(std::uint32_t message) override {
        if (message == WM_APP) {
            throw Except{ErrorCode::NoSolution};
        }
        if (message == WM_APP + 1) {
            throw std::runtime_error("second");
        }
        heard_ += message == WM_APP + 2 ? "went on; " : "";
        return std::nullopt;
    }

private:
    std::string& heard_;
};

TEST(MessageLoop, ReportsAnExceptionOfOneMessageAndGoesOn) {
    const WindowOwner top(
        CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr));
    std::string heard;
    const FailingArea area(top.get(), heard);
    for (const UINT code : {WM_APP, WM_APP + 1, WM_APP + 2}) {
        PostMessageW(area.handle(), code, 0, 0);
    }
    PostQuitMessage(7);

    const int status = runMessageLoop([&] {
        try {
            throw;
        } catch (const Except& failure) {
            heard += errorMessage(failure.code) + std::string("; ");
        } catch (const std::exception& failure) {
            heard += failure.what() + std::string("; ");
        }
    });
    EXPECT_EQ(heard, "no solution; second; went on; ");
    EXPECT_EQ(status, 7);
}

TEST(MessageLoop, AFailedPaintingIsReportedOnceAndNotAskedForWithoutEnd) {
    struct FailingPainter : TextArea {
        using TextArea::TextArea;
        bool onPaint() override { throw Except{ErrorCode::InternalFault}; }
    };
    const WindowOwner top(CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100, nullptr,
                                          nullptr, nullptr, nullptr));
    FailingPainter area(top.get(), 1, {});
    area.moveTo({0, 0, 50, 50});
    InvalidateRect(area.handle(), nullptr, FALSE);
    UpdateWindow(area.handle());
    EXPECT_FALSE(GetUpdateRect(area.handle(), nullptr, FALSE));
    PostQuitMessage(0);
    int reports = 0;
    runMessageLoop([&] { ++reports; });
    EXPECT_EQ(reports, 1);
}

}  // namespace
}  // namespace calquo
