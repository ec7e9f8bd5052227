// A host that ends without the farewell that the contract asks for, while its page is still there.
// usage: ending_host END PAGE PREVIEW
//   END      return: from main, which has the loader as a local; exit: std::exit; unload: in order, but for the page
//   PAGE     wizard: put into a wizard that nobody deletes; alone: put into none
//   PREVIEW  shown, or computing
// Its exit code is 7.

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
