#pragma once

#include <QString>

#include "Series.h"

/// What a state is called in a sentence or a list; empty for Untouched.
QString stateText(Series::State state);

/// One photograph of a series in words, for tool tips and assistive technology: name, strength, state and reason, a line each.
QString photographText(const QModelIndex &index);
