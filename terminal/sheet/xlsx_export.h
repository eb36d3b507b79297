// The terminal's service that saves a table for a spreadsheet program, with where it comes from.
//
// Relies on the questions of the host for the file's name and for telling what fails.
#pragma once

#include <QCoreApplication>
#include <functional>
#include <string>
#include <vector>

#include "screen/host/services.h"

namespace jogeon::terminal {

// Where every table of this terminal comes from (CP949).
struct SheetOrigin {
    std::string market;
    std::string marketDate;
    std::string user;
};

class XlsxExport : public host::SheetExport {
    Q_DECLARE_TR_FUNCTIONS(jogeon::terminal::XlsxExport)

public:
    // `questions` outlives this object; `origin` is asked at each saving.
    XlsxExport(host::Questions& questions, std::function<SheetOrigin()> origin);

    void Save(const host::Sheet& sheet, const std::vector<host::SheetNote>& notes) override;

private:
    host::Questions& questions_;
    const std::function<SheetOrigin()> origin_;
};

}  // namespace jogeon::terminal
