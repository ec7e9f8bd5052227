#pragma once

#include <QString>

#define V_TEXT_OF_(x) #x
#define V_TEXT_OF(x) V_TEXT_OF_(x)

/// The position of this line as a location text: File: "../image/VImage.cpp" Line: 902. The path is stringised twice, which adds
/// the quotes and doubles any backslash. Determined when the source is compiled.
#define V_LOCATION V_LOCATION_IN(__FILE__)
/// The same with the name of another source, given as a string literal.
#define V_LOCATION_IN(file) QStringLiteral("File: " V_TEXT_OF(file) " Line: " V_TEXT_OF(__LINE__))

/// The one failure type, thrown by value. Fixed: hosts rely on this name, this field order (the reverse of the constructor's
/// arguments), and on its not being a std::exception, whose handlers do not catch it.
class VException
{
public:
    /// First what went wrong, then where (V_LOCATION). Copies both texts: a literal disappears with its library, and the host may
    /// read a failure after unloading the plug-in.
    VException(const QString &messageText, const QString &locationText)
        : location(locationText.constData(), locationText.size()), message(messageText.constData(), messageText.size())
    {
    }

    QString location; ///< Source file and line of the throw; never translated.
    QString message;  ///< For a person; may be empty.
};
