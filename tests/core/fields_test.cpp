#include "engine/fields.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

// Handlers nest: an assignment inside a handler runs the inner handler to its
// end before the outer one goes on. The order of effects depends on it.
TEST(Fields, HandlersRunNestedToTheirEnd) {
    std::vector<std::string> log;
    Flag outer;
    List inner({"a", "b"});
    inner.setHandler([&] { log.push_back("inner " + inner.text()); });
    outer.setHandler([&] {
        log.push_back("outer start");
        inner.setIndex(1);
        log.push_back("outer end");
    });
    outer.setValue(1);
    EXPECT_EQ(log, (std::vector<std::string>{"outer start", "inner b", "outer end"}));
}

TEST(Fields, DisabledListIsQuiet) {
    int runs = 0;
    List list({"a", "b", "c"});
    list.setHandler([&] { ++runs; });
    list.setEnabled(false);
    list.setIndex(2);
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(list.text(), "c");
    list.setEnabled(true);
    list.setIndex(1);
    EXPECT_EQ(runs, 1);
}

TEST(Fields, ListAssignmentOnlyRunsOnANewIndexButAClickAlways) {
    int runs = 0;
    List list({"a", "b"});
    list.setHandler([&] { ++runs; });
    list.setIndex(0);
    list.setIndex(0);
    EXPECT_EQ(runs, 1);
    list.click(0);
    EXPECT_EQ(runs, 2);
    list.setIndex(5); // out of range: ignored
    list.click(-1);
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(list.index(), 0);
}

TEST(Fields, ListRowsAndSelectionStayInStep) {
    struct Case {
        const char* name;
        void (*edit)(List&);
        int index;
        std::string text;
    } cases[] = {
        {"clear", [](List& l) { l.clear(); }, -1, ""},
        {"insert before the selection", [](List& l) { l.insertItem("x", 0); }, 2, "b"},
        {"insert after the selection", [](List& l) { l.insertItem("x", 2); }, 1, "b"},
        {"remove before the selection", [](List& l) { l.removeItem(0); }, 0, "b"},
        {"remove the selection", [](List& l) { l.removeItem(1); }, -1, ""},
        {"remove after the selection", [](List& l) { l.removeItem(2); }, 1, "b"},
    };
    for (const Case& c : cases) {
        List list({"a", "b", "c"});
        list.setIndex(1);
        c.edit(list);
        EXPECT_EQ(list.index(), c.index) << c.name;
        EXPECT_EQ(list.text(), c.text) << c.name;
    }
}

TEST(Fields, TypedTextIsFreeAndRaisesNoEvent) {
    int runs = 0;
    List port({"Empty", "Beam Array"}, true);
    port.setHandler([&] { ++runs; });
    port.setText("Forward Weapon Port 1");
    EXPECT_EQ(port.index(), -1);
    port.setText("Beam Array");
    EXPECT_EQ(port.index(), 1);
    EXPECT_EQ(runs, 0);
}

TEST(Fields, ViewsHearEveryChange) {
    int refreshes = 0;
    Label box;
    box.setView([&] { ++refreshes; });
    box.setCaption("100");
    box.setCaption("100"); // no change, no refresh
    box.setBack(0x80FFFF);
    box.setVisible(false);
    EXPECT_EQ(refreshes, 3);
}

TEST(Fields, ControlArraysKeepTheirIndexBase) {
    Indexed<int, 1, 4> ports{};
    ports[1] = 10;
    ports[4] = 40;
    EXPECT_EQ(ports.items.front(), 10);
    EXPECT_EQ(ports.items.back(), 40);
    EXPECT_THROW(ports[0], std::out_of_range);
    EXPECT_THROW(ports[5], std::out_of_range);
}

} // namespace
} // namespace vantorel
