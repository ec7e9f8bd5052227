#pragma once

#include <QString>

#define V_TEXT_OF_(x) #x
#define V_TEXT_OF(x) V_TEXT_OF_(x)

/// Where this line stands, as a location text: File: "../image/VImage.cpp" Line: 902. The path is turned into a text a second
/// time, which puts the quotes around it and doubles any backslash. Fixed when the source is compiled.
#define V_LOCATION V_LOCATION_IN(__FILE__)
/// The same under the name of another source, given as a text.
#define V_LOCATION_IN(file) QStringLiteral("File: " V_TEXT_OF(file) " Line: " V_TEXT_OF(__LINE__))

/// The one failure type, thrown and caught by value. It is part of the contract between host and plug-in, which know it under
/// this name and field order, and on purpose it is no std::exception: a handler for those does not see it.
class VException
{
public:
    /// First what went wrong, then where (V_LOCATION). Takes copies of its own: a literal's text ends with the file it stands in,
    /// and the host may read a failure after it has unloaded the plug-in.
    VException(const QString &messageText, const QString &locationText)
        : location(locationText.constData(), locationText.size()), message(messageText.constData(), messageText.size())
    {
    }

    QString location; ///< Source file and line of the throw; never translated.
    QString message;  ///< For a person; may be empty.
};
