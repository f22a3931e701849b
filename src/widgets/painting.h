// Painting a window, with everything put back at the end, whatever happens.
#pragma once

#include <memory>

#include "widgets/geometry.h"
#include "widgets/handles.h"

struct tagPAINTSTRUCT;

namespace calquo {

/// The size of a window's client area, in pixels.
Size clientSize(WindowHandle window);

/// The painting of a window's invalid part, which is valid afterwards.
class Painting {
public:
    explicit Painting(WindowHandle window);
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;
    ~Painting();

    DrawingContext context() const { return context_; }

private:
    WindowHandle window_;
    std::unique_ptr<tagPAINTSTRUCT> painting_;
    DrawingContext context_;
};

/// Selects a drawing object into a context while it lives.
class Selection {
public:
    Selection(DrawingContext context, void* object);
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection();

private:
    DrawingContext context_;
    void* previous_;
};

}  // namespace calquo
