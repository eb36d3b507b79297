// Every dialog of the screen, filled with something, one after the other.
#pragma once

#include <QTreeWidget>
#include <memory>

#include "screen/expression/expression_error_dialog.h"
#include "screen/expression/expression_help_dialog.h"
#include "screen/results/result_notice_dialog.h"
#include "screen/saved/import_dialog.h"
#include "screen/saved/name_dialog.h"
#include "screen/saved/reorder_dialog.h"
#include "screen/target/target_dialog.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/target_lists.h"
#include "tests/screen/support/test_host.h"

namespace jogeon::test {

// Calls `look` with each of them shown over the screen of `host`.
template <typename Look>
void ForEachDialog(TestHost& host, Look look) {
    const auto show = [&](std::unique_ptr<QDialog> dialog) {
        dialog->show();
        QApplication::processEvents();
        look(*dialog);
    };
    WriteText(host.folder.Path() / "User/other_SaveIndex.dat",
              "[Version]\r\nver=000.001\r\n\r\n[07]\r\nName=남의조건\r\nExp=A\r\nCount=1\r\n"
              "00=0601010008;A;1;0;;\r\n");
    TargetLists lists;
    host::Services services = host::Installed();
    services.codeLists = &lists;
    TargetFields target;
    show(std::make_unique<TargetDialog>(services, target, &host.Screen()));
    show(std::make_unique<ExpressionErrorDialog>("A and ☞ B"_cp949));
    show(std::make_unique<ExpressionHelpDialog>());
    show(std::make_unique<NameDialog>(std::vector<std::string>(), "내조건"_cp949, host.questions,
                                      &host.Screen()));
    show(std::make_unique<ImportDialog>(host.folder.Path() / "User", "trader", host.questions,
                                        &host.Screen()));
    const std::vector<SavedSetName> names{{"01", "하나"_cp949}, {"02", "둘"_cp949}};
    show(std::make_unique<ReorderDialog>(names, &host.Screen()));
    show(std::make_unique<ResultNoticePopup>(host.Screen(), host.clock));
}

}  // namespace jogeon::test
