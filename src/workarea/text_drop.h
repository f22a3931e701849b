// Data that is dragged over a work area, or that the control pastes by itself: what to do with it.
#pragma once

struct IRichEditOleCallback;

namespace calquo {

class WorkArea;

/// The interface, with its first owner, by which the control of a work area asks what to do with data. With it, the
/// control takes nothing in by itself but its own text, which is moved within it: text goes through the work area's
/// insertForeignText, files go to its parent, and everything else is refused. `workArea` must outlive its use.
IRichEditOleCallback* newTextDrop(WorkArea& workArea);

/// Makes the work area's control ask this interface.
void takeDroppedTextBy(WorkArea& workArea);

}  // namespace calquo
