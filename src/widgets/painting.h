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

/// The same for the whole of a child window, in memory on the background that its parent chooses, and then shown at
/// once, so that nothing flickers.
class BufferedPainting {
public:
    /// Raises InternalFault when the system has no memory for the picture.
    BufferedPainting(WindowHandle window, WindowHandle parent);

    DrawingContext context() const { return context_.get(); }
    Size size() const { return size_; }

    /// Copies the picture to the window.
    void show() const;

private:
    Painting painting_;
    Size size_;
    DrawingContextOwner context_;
    BitmapOwner bitmap_;
    Selection selection_;
};

}  // namespace calquo
