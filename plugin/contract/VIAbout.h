#pragma once

#include <QIcon>
#include <QString>
#include <QtPlugin>

/// What an object of the plug-in says about itself. Abstract, without data.
class VIAbout
{
public:
    virtual ~VIAbout() = default;
    virtual QString name() = 0;
    virtual QString author() = 0;
    virtual QString company() = 0;
    virtual QString description() = 0; ///< Translated.
    virtual QString version() = 0;
    virtual QIcon icon() = 0; ///< May be empty.
    virtual QString guid() = 0;
};

Q_DECLARE_INTERFACE(VIAbout, "VIAbout")
