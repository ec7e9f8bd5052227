// A host that ends without the clean-up that the contract asks for, while its page still exists.
// usage: ending_host END PAGE PREVIEW
//   END      return: from main, where the loader is a local variable; exit: std::exit; unload: in order, except for the page
//   PAGE     wizard: in a wizard that is never deleted; alone: in no wizard
//   PREVIEW  shown or computing
// Exit status: 7.

#include <cstdlib>

#include <QEventLoop>
#include <QPluginLoader>
#include <QWizard>

#include "TestHost.h"
#include "VIPluginLibrary.h"
#include "VIPluginOne2One.h"

int main(int argc, char **argv)
{
    constexpr int kExitCode = 7;
    TestHost host(argc, argv);
    const QStringList arguments = QApplication::arguments();
    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    auto *const library = qobject_cast<VIPluginLibrary *>(loader.instance());
    if (!library || arguments.size() != 4)
        return 1;
    auto *const process = qobject_cast<VIPluginOne2One *>(library->processes(1).constLast().data());
    host.setValue(QStringLiteral("51D2A7E4-93C6-4F08-B1E5-6A0C7D3E9F21"), QStringLiteral("hazeRemove"), 80);
    host.image(QStringLiteral("/p/photo.png")).fullWidth = 512;
    host.image(QStringLiteral("/p/photo.png")).fullHeight = 384;

    QWizardPage *const page = process->wizardPage();
    if (arguments[2] == QStringLiteral("wizard")) {
        auto *const wizard = new QWizard;
        wizard->addPage(page);
        wizard->show();
    }
    process->setImages({QStringLiteral("/p/photo.png")});
    if (arguments[3] == QStringLiteral("shown")) {
        QEventLoop loop;
        QObject::connect(page, &QWizardPage::completeChanged, [&] { page->isComplete() ? loop.quit() : void(); });
        loop.exec();
    }
    if (arguments[1] == QStringLiteral("exit"))
        std::exit(kExitCode);
    if (arguments[1] == QStringLiteral("unload"))
        loader.unload();
    return kExitCode;
}
