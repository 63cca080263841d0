#include "qt/CommandLine.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <cstdio>

namespace sw::qt {
namespace {

void print(std::FILE* stream, const QString& text) {
    std::fputs(text.toLocal8Bit().constData(), stream);
}

int usageError(const QString& problem) {
    print(stderr, "slicewright: " + problem +
                      "\nUsage: slicewright [options] [PICTURE]\n"
                      "Try 'slicewright --help' for more information.\n");
    return kUsageExitCode;
}

} // namespace

CommandLine ReadCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Slicewright divides a picture into a grid of sections and writes every section as a "
        "numbered BMP or JPG file.");
    // Not addHelpOption(): its --help-all lists Qt's own options, which this
    // command line does not take.
    const QCommandLineOption help({"h", "help"}, "Displays this help.");
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument("PICTURE", "A BMP, JPG or GIF picture to open at start.",
                                 "[PICTURE]");
    if (!parser.parse(arguments)) {
        return {usageError(parser.errorText()), {}};
    }
    if (parser.isSet(help)) {
        print(stdout, parser.helpText());
        return {0, {}};
    }
    if (parser.isSet(version)) {
        print(stdout, "slicewright " + QCoreApplication::applicationVersion() + "\n");
        return {0, {}};
    }
    const QStringList pictures = parser.positionalArguments();
    if (pictures.size() > 1) {
        return {usageError("one picture at a time, not " + QString::number(pictures.size()) + "."),
                {}};
    }
    if (pictures.isEmpty()) {
        return {};
    }
    return {std::nullopt, QFileInfo(pictures.first()).absoluteFilePath()};
}

} // namespace sw::qt
