#include "profileName.h"

#include <memory>
#include <string>

#include <QLocale>
#include <lcms2.h>

QString profileName(const QByteArray &icc)
{
    const QString standard = QStringLiteral("sRGB");
    const std::unique_ptr<void, cmsBool (*)(cmsHPROFILE)> profile(
        icc.isEmpty() ? nullptr : cmsOpenProfileFromMem(icc.constData(), cmsUInt32Number(icc.size())), cmsCloseProfile);
    if (!profile)
        return standard;
    const QByteArray locale = QLocale().name().toLatin1(); // as de_DE, or C
    const std::string language = locale.size() == 5 ? locale.left(2).toStdString() : "en";
    const std::string country = locale.size() == 5 ? locale.right(2).toStdString() : "US";
    const auto described = [&](wchar_t *text, cmsUInt32Number bytes) {
        return cmsGetProfileInfo(profile.get(), cmsInfoDescription, language.c_str(), country.c_str(), text, bytes);
    };
    std::wstring text(described(nullptr, 0) / sizeof(wchar_t), L'\0');
    described(text.data(), cmsUInt32Number(text.size() * sizeof(wchar_t)));
    const QString name = QString::fromWCharArray(text.c_str()).simplified();
    return name.isEmpty() ? standard : name;
}
