#include "host/disk_file_service.h"
#include "support/temporary_name.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace quendal {
namespace {

namespace fs = std::filesystem;

class DiskFiles : public testing::Test {
  protected:
    DiskFiles() : root(test::temporaryName("quendal-files")) {
        fs::remove_all(root);
        fs::create_directories(root);
    }
    ~DiskFiles() override { fs::remove_all(root); }

    void put(const std::string& name, const std::string& bytes = "x") const {
        fs::create_directories((root / name).parent_path());
        std::ofstream(root / name, std::ios::binary) << bytes;
    }
    std::string at(const std::string& name) const { return root.string() + "/" + name; }

    std::string found(const std::string& pattern, int subfolders = 0) const {
        FileList list = service.FindFiles(at(pattern), subfolders);
        list.Sort(-1);
        std::string names;
        for (int i = 1; i <= list.Count(); ++i) {
            names += (i > 1 ? " " : "") + fs::relative(list.Item(i), root).string();
        }
        return names;
    }

    fs::path root;
    DiskFileService service;
};

TEST_F(DiskFiles, FindsInAnyCaseAndWithBackslashes) {
    put("Frames/Burette/Bur01.GIF");
    for (const char* name :
         {"Frames/Burette/Bur01.GIF", "frames\\burette\\bur01.gif", "FRAMES/Burette\\BUR01.gif",
          "Frames/./Burette/../Burette/bur01.gif"}) {
        EXPECT_TRUE(service.FileExists(at(name))) << name;
        EXPECT_TRUE(fs::exists(service.realName(at(name)))) << name;
        EXPECT_EQ(service.read(at(name)), "x") << name;
    }
    EXPECT_EQ(service.realName(at("frames\\burette\\bur01.gif")), at("Frames/Burette/Bur01.GIF"));
}

TEST_F(DiskFiles, FindsUmlautsInBothForms) {
    put("Hilfe/Schwache Sa\u0308ure.rtf");
    put("Übung.crv");
    EXPECT_TRUE(service.FileExists(at("hilfe\\schwache säure.rtf")));
    EXPECT_TRUE(service.FileExists(at("hilfe\\SCHWACHE SÄURE.RTF")));
    EXPECT_TRUE(service.FileExists(at("u\u0308bung.crv")));
    EXPECT_EQ(found("Hilfe/*säure.rtf"), "Hilfe/Schwache Sa\u0308ure.rtf");
}

TEST_F(DiskFiles, TheExactNameComesFirst) {
    put("a.txt", "lower");
    put("A.TXT", "upper");
    EXPECT_EQ(service.read(at("a.txt")), "lower");
    EXPECT_EQ(service.read(at("A.TXT")), "upper");
    EXPECT_EQ(service.read(at("a.TXT")), "upper"); // the first in the order of the bytes
}

TEST_F(DiskFiles, WhatIsNotThere) {
    put("folder/file");
    for (const char* name : {"nothing", "folder", "folder/file/below", "folder/nothing", ""}) {
        EXPECT_FALSE(service.FileExists(at(name))) << name;
        EXPECT_EQ(service.read(at(name)), std::nullopt) << name;
    }
    EXPECT_FALSE(service.FileExists(""));
    EXPECT_EQ(service.read(""), std::nullopt);
    EXPECT_EQ(service.realName(at("sounds\\weg.wav")), at("sounds\\weg.wav"));
    EXPECT_FALSE(service.FileExists(at("folder/file") + std::string(1, '\0') + "x"));
    EXPECT_FALSE(service.FileExists(at(std::string(10'000, 'a'))));
    EXPECT_FALSE(service.FileExists(at("\xFF\xFE")));
}

TEST_F(DiskFiles, FindFilesMatchesPatterns) {
    put("f/bur02.gif");
    put("f/BUR01.GIF");
    put("f/other.txt");
    put("f/sub/bur03.gif");
    put("f/sub/deep/bur04.gif");
    EXPECT_EQ(found("F\\bur*.gif"), "f/BUR01.GIF f/bur02.gif");
    EXPECT_EQ(found("f\\*.*"), "f/BUR01.GIF f/bur02.gif f/other.txt");
    EXPECT_EQ(found("f\\*.gif", 1), "f/BUR01.GIF f/bur02.gif f/sub/bur03.gif f/sub/deep/bur04.gif");
    EXPECT_EQ(found("weg\\*.gif"), "");
    EXPECT_EQ(found("f\\*.wmf"), "");
    EXPECT_EQ(found("f\\sub"), "");
    EXPECT_EQ(service.FindFiles("").Count(), 0);
    EXPECT_EQ(service.FindFiles(std::string("\0*", 2)).Count(), 0);
}

TEST_F(DiskFiles, ItemsAreFullNames) {
    put("f/a.gif");
    EXPECT_EQ(service.FindFiles(at("f\\*.gif")).Item(1), at("f/a.gif"));
}

TEST_F(DiskFiles, ALinkToItsOwnFolderEndsSomewhere) {
    put("f/a.gif");
    fs::create_directory_symlink(root / "f", root / "f" / "again");
    EXPECT_EQ(found("f\\*.gif", 1), "f/a.gif");
}

TEST_F(DiskFiles, ReadsUpToItsLimit) {
    put("data", std::string("a\0b\r\n", 5));
    EXPECT_EQ(service.read(at("data")), std::string("a\0b\r\n", 5));
    EXPECT_TRUE(service.read(at("data"), 5));
    EXPECT_FALSE(service.read(at("data"), 4));
    put("empty", "");
    EXPECT_EQ(service.read(at("empty")), "");
    const std::string large(300'000, 'z');
    put("large", large);
    EXPECT_EQ(service.read(at("large")), large);
    EXPECT_EQ(service.read("/dev/zero"), std::nullopt);
}

TEST_F(DiskFiles, WritesWhole) {
    EXPECT_TRUE(service.write(at("new.txt"), std::string("a\0\n", 3)));
    EXPECT_EQ(service.read(at("new.txt")), std::string("a\0\n", 3));
    EXPECT_TRUE(service.write(at("NEW.TXT"), "b"));
    EXPECT_EQ(service.read(at("new.txt")), "b");
    put("Folder/x");
    EXPECT_TRUE(service.write(at("folder\\y.txt"), "c"));
    EXPECT_EQ(found("folder\\*"), "Folder/x Folder/y.txt");
}

TEST_F(DiskFiles, TellsWhatItCannotWrite) {
    put("folder/x");
    EXPECT_FALSE(service.write(at("weg/new.txt"), "a"));
    EXPECT_FALSE(service.write(at("folder"), "a"));
    EXPECT_FALSE(service.write("", "a"));
    EXPECT_FALSE(service.write(std::string("a\0b", 3), "a"));
    EXPECT_EQ(found("*", 1), "folder/x");
}

} // namespace
} // namespace quendal
