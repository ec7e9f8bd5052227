#pragma once

#include <QString>

/// What the library object and its process say alike.
namespace pluginIdentity {

inline QString author()
{
    return QStringLiteral("Camille Ombre");
}

inline QString company()
{
    return QStringLiteral("Ombre");
}

inline QString version()
{
    return QStringLiteral("3.0.0.400");
}

/// GUID of the process: the group of its stored settings and the folder of the plug-in's pictures.
inline QString processGuid()
{
    return QStringLiteral("51D2A7E4-93C6-4F08-B1E5-6A0C7D3E9F21");
}

/// A path that no resource answers, so that the icon is empty.
inline QString iconPath()
{
    return QStringLiteral(":/%1/Resources/Nimbra.png").arg(processGuid());
}

} // namespace pluginIdentity
