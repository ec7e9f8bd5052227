// scripts/dehaze in a copied tree, where the programs that it calls only record their calls.

#include <QDir>
#include <gtest/gtest.h>

#include "TestFolder.h"

TEST(Dehaze, GivesTheProgramWhatTheUserNamedAndNothingElse)
{
    const TestFolder folder;
    const Said made = folder.shell("mkdir -p tree/scripts tree/build/release/bin photos; cp \"$DEHAZE\" tree/scripts/dehaze; "
                                   "ln -s ../tree/scripts/dehaze photos/link; cd tree; "
                                   "for f in scripts/install-dependencies scripts/build build/release/bin/veilaway; do "
                                   "printf '#!/bin/sh\\necho ${0##*/} \"$@\" >>\"$CALLS\"\\n' >$f; chmod +x $f; done; "
                                   "f=build/release/bin/draw_scene; printf '#!/bin/sh\\necho >$1\\n' >$f; chmod +x $f; "
                                   "cd ../photos; touch mine.png -- -dash.png",
                                   {QStringLiteral("DEHAZE=") + DEHAZE});
    ASSERT_EQ(made.code, 0) << made.err;
    const QString built = "install-dependencies --build\nbuild --program release veilaway Nimbra draw_scene\n";
    const struct
    {
        const char *arguments, *given; ///< `given` to the program; null where nothing may be called.
        const char *said;
    } rows[] = {
        {"", "TREE/build/sample.jpg --overwrite", ""},
        {"mine.png --strength 80", "mine.png --strength 80", ""},
        {"--strength 80 mine.png", "--strength 80 mine.png", ""},
        {"--settings haze.xml --overwrite", "--settings haze.xml --overwrite", ""},
        {"--set-default auto", "--set-default auto", ""},
        {"--help", "--help", ""},
        {"wizard --language de", "wizard --language de", ""},
        {"--jobs=2 -- -dash.png", "--jobs=2 -- -dash.png", ""},
        {"mine.png none.png", nullptr, "\"none.png\""},
        {"--strength 80 none.png", nullptr, "\"none.png\""},
        {"-- mine.png --strength", nullptr, "\"--strength\""},
    };
    for (const auto &row : rows)
        for (const char *script : {"../tree/scripts/dehaze", "./link"}) {
            SCOPED_TRACE(QStringLiteral("%1 %2").arg(script, row.arguments).toStdString());
            folder.write("calls", "");
            const Said said =
                folder.shell(QStringLiteral("cd photos; %1 %2").arg(script, row.arguments), {"CALLS=" + folder.path("calls")});
            EXPECT_EQ(said.code, row.given ? 0 : 1) << said.err;
            EXPECT_TRUE(row.given ? said.err.isEmpty() : said.err.contains(row.said)) << said.err;
            const QString tree = QDir(folder.path("tree")).canonicalPath();
            EXPECT_EQ(QString(folder.content("calls")).replace(tree, "TREE"),
                      row.given ? built + "veilaway " + row.given + '\n' : QString());
        }
}
