// SPDX-License-Identifier: MIT
#include "cli/Help.h"

namespace tonquil {

const std::string_view helpText =
    R"(tonquilctl: corrects the tone and colour of displays from a shell

  tonquilctl displays [--json]
      lists the displays: number, reference ID, connector, bounds, ramp size,
      and whether the ID is unique everywhere or only among this machine's
  tonquilctl apply FILE [--display REFERENCE-ID]...
      applies a settings file, the calibration of an ICC profile or .cal file, or a
      raw table of 768 bytes; --preset NAME in place of FILE means one of the presets
  tonquilctl apply --curve '[13 numbers]' [--display REFERENCE-ID]...
      applies a curve: mode (0 absolute, 1 over the calibration), master black,
      middle and white, then black, middle and white of red, green and blue
  tonquilctl apply --hold ...
      stays and keeps the correction on the displays until it is ended by a signal,
      for desktops on which a correction ends with the program that set it; without
      --hold, apply and restore are handed there to the tonquil that runs
  tonquilctl restore [--display REFERENCE-ID]...
      goes back to the system's own calibration
  tonquilctl read [--display REFERENCE-ID] [--hardware]
      prints the system's table of a display, or what is on its hardware now
  tonquilctl table (FILE | --curve '[13 numbers]') [--samples N] [--base FILE]
      computes a table without any display; of a file for several displays,
      --display REFERENCE-ID says which curve
  tonquilctl export [--display REFERENCE-ID] [--format icc|cal|table] FILE
      saves what is on a display's hardware now as an ICC profile, a .cal file or a
      raw table; without --format the file's extension decides
  tonquilctl fit FILE
      prints the curve that comes closest to a file's table, and the largest
      difference between their levels
  tonquilctl remote scan [--timeout SECONDS] [--json] [--address HOST]
      lists the computers on the network whose displays can be set from here
  tonquilctl remote get HOST [REFERENCE-ID]
      lists the displays of a computer, or prints the curve of one of them
  tonquilctl remote set HOST REFERENCE-ID [FILE | --curve '[13 numbers]']
        [--content colorTargets|grayscaleTargets|transparent]
      sets the curve of a computer's display, or what is shown on it
  tonquilctl remote watch HOST
      prints what a computer announces, a line of JSON for each change
  tonquilctl --help | --version

--display also takes the connector that a display is plugged into, such as DP-1.
Without --display, apply and restore mean all displays, read and export the main one.
Tables are lines of: index, red, green, blue, separated by tabs, levels 0 to 1.
The exit status is 0, 1 for a failure and 2 for a wrong command line.
)";

}  // namespace tonquil
