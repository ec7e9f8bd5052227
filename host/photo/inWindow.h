#pragma once

/// True if the program shows windows. Messages then name no options of the command line.
bool inWindow();
