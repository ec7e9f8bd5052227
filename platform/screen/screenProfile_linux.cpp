#include "screenProfile.h"

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace {

constexpr std::uint32_t kMostWords = 16 << 20; ///< Profiles are at most a few megabytes; in units of 4 bytes.

struct Release
{
    void operator()(void *reply) const { std::free(reply); }
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};

} // namespace

std::vector<std::uint8_t> screenProfile()
{
    int number = 0;
    const std::unique_ptr<xcb_connection_t, Release> connection(xcb_connect(nullptr, &number));
    if (xcb_connection_has_error(connection.get()))
        return {};
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; screen.rem > 0 && number > 0; --number)
        xcb_screen_next(&screen);
    if (screen.rem == 0)
        return {};
    constexpr char kName[] = "_ICC_PROFILE";
    const std::unique_ptr<xcb_intern_atom_reply_t, Release> atom(xcb_intern_atom_reply(
        connection.get(), xcb_intern_atom(connection.get(), /*only_if_exists=*/1, sizeof kName - 1, kName), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return {};
    const std::unique_ptr<xcb_get_property_reply_t, Release> property(
        xcb_get_property_reply(connection.get(),
                               xcb_get_property(connection.get(), /*_delete=*/0, screen.data->root, atom->atom,
                                                XCB_GET_PROPERTY_TYPE_ANY, 0, kMostWords),
                               nullptr));
    if (!property || property->format != 8)
        return {};
    const auto *bytes = static_cast<const std::uint8_t *>(xcb_get_property_value(property.get()));
    return {bytes, bytes + xcb_get_property_value_length(property.get())};
}
