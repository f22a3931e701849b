// What the commands of the work area's context menu do.
#pragma once

#include <functional>
#include <string>

#include "assist/line_value.h"
#include "format/numeric_format.h"
#include "shell/sheet_commands.h"
#include "shell/user_dialogs.h"
#include "workarea/work_area.h"

namespace calquo {

class SheetActions {
public:
    /// Results are written under what `format` gives at that time; the references must outlive this.
    SheetActions(WorkArea& workArea, const UserDialogs& dialogs, std::function<NumericFormat()> format);

    /// Carries a command out; one that is none of the work area's does nothing.
    void run(Command command);

    /// What stands on the sheet, as far as it decides which commands can be given.
    SheetState state() const;

private:
    void evaluateAll();
    void addSum();
    void copy();
    void copyResult(std::string (*textOf)(const LineValue&));

    WorkArea& workArea_;
    const UserDialogs& dialogs_;
    std::function<NumericFormat()> format_;
};

}  // namespace calquo
