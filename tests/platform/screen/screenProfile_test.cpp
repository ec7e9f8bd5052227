#include "screenProfile.h"

#include <cstdlib>

#include <gtest/gtest.h>
#include <xcb/xcb.h>

TEST(ScreenProfile, IsWhatTheDesktopHasSetOnTheFirstScreen)
{
    int number = 0;
    xcb_connection_t *const connection = xcb_connect(nullptr, &number);
    ASSERT_EQ(xcb_connection_has_error(connection), 0);
    EXPECT_TRUE(screenProfile().empty()) << "nothing is set yet";
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_intern_atom_reply_t *const atom =
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, 12, "_ICC_PROFILE"), nullptr);
    std::vector<std::uint8_t> profile(300000); // longer than the 262,140 bytes of a plain request
    for (std::size_t i = 0; i < profile.size(); ++i)
        profile[i] = std::uint8_t(i % 251);
    const auto set = [&](const std::vector<std::uint8_t> &bytes, std::uint8_t mode) {
        xcb_change_property(connection, mode, root, atom->atom, XCB_ATOM_CARDINAL, 8, std::uint32_t(bytes.size()), bytes.data());
    };
    const auto middle = profile.begin() + 150000;
    set({profile.begin(), middle}, XCB_PROP_MODE_REPLACE);
    set({middle, profile.end()}, XCB_PROP_MODE_APPEND);
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr)); // all has been done
    EXPECT_EQ(screenProfile(), profile);
    std::free(atom);
    xcb_disconnect(connection);

    setenv("DISPLAY", "nowhere:77", 1);
    EXPECT_TRUE(screenProfile().empty());
}
