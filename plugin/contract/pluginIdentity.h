#pragma once

#include <QString>

/// What the library object and its process both say about themselves.
namespace pluginIdentity {

inline QString author()
{
    return QString::fromLatin1("Camille Ombre");
}

inline QString company()
{
    return QString::fromLatin1("Ombre");
}

inline QString version()
{
    return QString::fromLatin1("3.0.0.400");
}

/// GUID of the process: the group of its stored settings and the folder of the plug-in's pictures.
inline QString processGuid()
{
    return QString::fromLatin1("51D2A7E4-93C6-4F08-B1E5-6A0C7D3E9F21");
}

/// Key of the strength, in per cent, in the process's stored settings and among the attributes of its settings element.
inline QString strengthKey()
{
    return QString::fromLatin1("hazeRemove");
}

/// No resource has this path, so the icon is empty. Fixed: hosts rely on it, and show an icon of their own.
inline QString iconPath()
{
    return QString::fromLatin1(":/%1/Resources/Nimbra.png").arg(processGuid());
}

} // namespace pluginIdentity
