// A control of a panel field that holds what a test puts into it.
#pragma once

#include <string>

#include "screen/condition/index_field.h"

namespace jogeon::test {

struct FakeControl : FieldControl {
    std::string text;
    std::string item;
    int selected = -1;
    int check = 0;

    std::string GetText() const override { return text; }
    int GetCheck() const override { return check; }
    void SetCheck(int value) override { check = value; }
    std::string GetSelectedItemText() const override { return item; }
    int GetSelectedIndex() const override { return selected; }
    void Focus() override {}
};

}  // namespace jogeon::test
