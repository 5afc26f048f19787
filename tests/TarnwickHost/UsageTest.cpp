#include "TarnwickHost/HostProcess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

using test::Output;
using test::runHost;

namespace {

TEST(Usage, WrongCallsGetOneLineAndStatusTwo) {
    const test::TemporaryFolder folder;
    const std::string there = folder.path();
    const std::string file = folder.path() / "file";
    std::ofstream(file).put('x');
    const std::string endless(5000, 'a');

    struct Case {
        std::vector<std::string> arguments;
        std::string says;
    };
    const std::vector<Case> cases{
        {{}, "a command is missing"},
        {{"bench"}, "there is no command 'bench'"},
        {{"facts"}, "a FOLDER is missing"},
        {{"facts", "/", "/"}, "one FOLDER at a time"},
        {{"facts", "/no/such/path"}, "No such file or directory"},
        {{"facts", ""}, "No such file or directory"},
        {{"volumes", "/"}, "takes no operand"},
        {{"volumes", "--yaml"}, "there is no option '--yaml'"},
        {{"smart-report"}, "a FOLDER is missing"},
        {{"smart-report", "/no/such/folder"}, "No such file or directory"},
        {{"run"}, "a FOLDER to measure is missing"},
        {{"run", ""}, "name is empty"},
        {{"run", there + "/none"}, "No such file or directory"},
        {{"run", file}, "is not a folder"},
        {{"run", file + "/below"}, "Not a directory"},
        {{"run", endless}, "too long"},
        {{"run", there, there}, "one FOLDER at a time"},
        {{"check"}, "a FOLDER to check is missing"},
        {{"check", "--size", "0", there}, "--size needs"},
        {{"check", "--leave-free=-1", there}, "--leave-free needs"},
        {{"check", "--again", "1e9", there}, "a year at most"},
        {{"check", "--again", "nan", there}, "--again needs"},
        {{"run", "--siz", "1G", there}, "there is no option '--siz'"},
        {{"run", "--json=yes", there}, "--json takes no value"},
        {{"run", there, "--size"}, "--size needs a value"},
        {{"run", "--", "--none"}, "'--none': No such file"},
        {{"run", "--size", "1G", "--size", "x", there}, "not 'x'"},
        {{"run", "--size", "", there}, "--size needs a number of bytes"},
        {{"run", "--size", "-1", there}, "not '-1'"},
        {{"run", "--size", "0x100", there}, "not '0x100'"},
        {{"run", "--size", "5GB", there}, "not '5GB'"},
        {{"run", "--size", "1.5G", there}, "not '1.5G'"},
        {{"run", "--size", "9223372036854775808", there}, "--size needs"},
        {{"run", "--size", "9999999999T", there}, "--size needs"},
        {{"run", "--size", "5\n\x1b[31mG\xff", there}, "--size needs"},
        {{"run", "--leave-free", "1G", there}, "goes with --size fill"},
        {{"run", "--size", "fill", "--leave-free", "-1", there}, "--leave-free needs"},
        {{"run", "--write-block", "2G", there}, "--write-block needs"},
        {{"run", "--random-ops", "-1", there}, "--random-ops needs a whole number"},
        {{"run", "--random-ops", "1e3", there}, "not '1e3'"},
        {{"run", "--file-ops", "99999999999999999999", there}, "--file-ops needs"},
        {{"run", "--sample-interval", "nan", there}, "not 'nan'"},
        {{"run", "--sample-interval", "inf", there}, "not 'inf'"},
        {{"run", "--sample-interval", "1e999", there}, "not '1e999'"},
        {{"run", "--sample-interval", "-0.1", there}, "not '-0.1'"},
        {{"run", "--tests", "sequentialwrite", there}, "there is no test 'sequentialwrite'"},
        {{"run", "--tests", "fileOps,", there}, "there is no test ''"},
        {{"run", "--output", file, there}, "exists and holds no runs"},
        {{"run", "--output", there, there}, "is a folder"},
        {{"run", "--output", "/dev/full", "--force", there}, "is not a regular file"},
        {{"run", "--output", "-", there}, "needs the name of a file"},
        {{"run", "--output", there + "/none/x", there}, "No such file or directory"},
        {{"show", "--format", "pdf", file}, "not 'pdf'"},
        {{"history", "forget"}, "not 'forget'"},
        {{"history", "delete"}, "needs either RUNs or --all"},
        {{"history", "delete", "--all", "0123"}, "needs either RUNs or --all"},
        {{"history", "--all"}, "--all goes with delete only"},
        {{"history", "list", "--format", "csv"}, "--format goes with show and export only"},
        {{"history", "show", "--output", "x"}, "--output goes with export only"},
        {{"run", "--force", there}, "--force goes with --output only"},
        {{"history", "export"}, "needs --output FILE"},
        {{"history", "export", "--output", there + "/x.doc"}, "--format is needed"},
        {{"history", "export", "--output", there + "/x.tarnwickrun"}, "a run file holds one run, not 0"},
    };
    for (const Case& wrong : cases) {
        const auto outcome = runHost(wrong.arguments);
        EXPECT_EQ(outcome.exitStatus, 2) << wrong.says;
        EXPECT_EQ(outcome.output, "") << wrong.says;
        EXPECT_NE(outcome.errors.find(wrong.says), std::string::npos)
            << wrong.says << " / " << outcome.errors;
        const std::string line = outcome.errors.substr(0, outcome.errors.size() - 1); // without its break
        EXPECT_TRUE(std::none_of(line.begin(), line.end(), [](char each) { return each >= 0 && each < 32; }))
            << line;
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(there), {}), 1);
}

TEST(Usage, HelpAndVersionGoToStandardOutput) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--help"},
                                                      {"-h"},
                                                      {"--version"},
                                                      {"run", "--help"},
                                                      {"run", "-h", "/none"}}) {
        const auto outcome = runHost(arguments);
        EXPECT_EQ(outcome.exitStatus, 0) << arguments.front();
        EXPECT_EQ(outcome.errors, "");
        EXPECT_NE(outcome.output.find("tarnwick-host"), std::string::npos);
    }
    EXPECT_NE(runHost({"run", "--help"}).output.find("--random-ops N"), std::string::npos);
    EXPECT_EQ(runHost({"--help"}, Output::fullDevice).exitStatus, 1);
}

} // namespace
