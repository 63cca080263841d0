// Picture names on the command line with blanks, letters beyond ASCII and a
// leading dash: after "--" every name is a picture, as with any Unix program.
#include "qt/CommandLine.h"

#include <QCoreApplication>
#include <QDir>
#include <gtest/gtest.h>

namespace sw {
namespace {

qt::CommandLine readArguments(const QStringList& arguments) {
    static int argc = 1;
    static char name[] = "slicewright";
    static char* argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    return qt::ReadCommandLine(QStringList{"slicewright"} + arguments);
}

TEST(CommandLinePaths, NamesOfEveryKindReachTheProgramWhole) {
    for (const QString name : {"Mes images/été 写真.bmp", "a b.jpg", "/x/y z/ü.gif"}) {
        const qt::CommandLine line = readArguments({name});
        EXPECT_FALSE(line.exitCode.has_value()) << name.toStdString();
        EXPECT_EQ(line.picture, QDir::current().absoluteFilePath(name));
    }
}

TEST(CommandLinePaths, ALeadingDashAfterTheEndOfOptionsIsAPicture) {
    const qt::CommandLine line = readArguments({"--", "-rose.bmp"});
    EXPECT_FALSE(line.exitCode.has_value());
    EXPECT_EQ(line.picture, QDir::current().absoluteFilePath("-rose.bmp"));
}

} // namespace
} // namespace sw
