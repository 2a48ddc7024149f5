// SPDX-License-Identifier: MIT
// The minimum for correcting every display: connect, query the active CRTCs and their ramp sizes,
// compute one ramp, set it, wait once, exit. It saves nothing, so it could not restore anything.
#include <math.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <xcb/randr.h>
#include <xcb/xcb.h>

enum { mostCrtcs = 64, mostEntries = 4096 };

static int fail(const char* what) {
    fprintf(stderr, "floor: %s\n", what);
    return 1;
}

static void computeRamp(uint16_t* entries, uint16_t size) {
    for (uint16_t i = 0; i < size; ++i) {
        const double level = pow((double)i / (size - 1), 1.2);
        for (int channel = 0; channel < 3; ++channel) {
            entries[channel * size + i] = (uint16_t)(level * 65535 + 0.5);
        }
    }
}

static int setRamps(xcb_connection_t* connection, const xcb_randr_crtc_t* crtcs, int count) {
    static uint16_t entries[3 * mostEntries];
    xcb_randr_get_crtc_info_cookie_t infos[mostCrtcs];
    xcb_randr_get_crtc_gamma_size_cookie_t sizes[mostCrtcs];
    for (int i = 0; i < count; ++i) {
        infos[i] = xcb_randr_get_crtc_info(connection, crtcs[i], XCB_CURRENT_TIME);
        sizes[i] = xcb_randr_get_crtc_gamma_size(connection, crtcs[i]);
    }
    uint16_t computed = 0;
    int lit = 0;
    for (int i = 0; i < count; ++i) {
        xcb_randr_get_crtc_info_reply_t* info =
            xcb_randr_get_crtc_info_reply(connection, infos[i], NULL);
        xcb_randr_get_crtc_gamma_size_reply_t* size =
            xcb_randr_get_crtc_gamma_size_reply(connection, sizes[i], NULL);
        if (info && size && info->mode != XCB_NONE && size->size > 1 && size->size <= mostEntries) {
            if (computed != size->size) {
                computed = size->size;
                computeRamp(entries, computed);
            }
            xcb_randr_set_crtc_gamma(connection, crtcs[i], computed, entries, entries + computed,
                                     entries + (size_t)2 * computed);
            ++lit;
        }
        free(info);
        free(size);
    }
    return lit;
}

int main(void) {
    xcb_connection_t* connection = xcb_connect(NULL, NULL);
    if (xcb_connection_has_error(connection)) {
        return fail("no X server");
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_randr_get_screen_resources_current_reply_t* resources =
        xcb_randr_get_screen_resources_current_reply(
            connection, xcb_randr_get_screen_resources_current(connection, root), NULL);
    if (!resources || resources->num_crtcs > mostCrtcs) {
        return fail("no CRTCs");
    }
    const int lit = setRamps(connection, xcb_randr_get_screen_resources_current_crtcs(resources),
                             resources->num_crtcs);
    free(resources);
    free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), NULL));
    const int isLost = xcb_connection_has_error(connection);
    xcb_disconnect(connection);
    return lit == 0 || isLost ? fail("no display was corrected") : 0;
}
