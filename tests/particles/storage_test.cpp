#include "particles/cls_Molecules.h"

#include "host/packer.h"
#include "host/stream.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quendal::test {
namespace {

class Storage : public testing::Test {
  protected:
    FakeHost host;

    static void fill(cls_Molecule& p, double base) {
        p.tmp_Data.Key = "K" + std::to_string(static_cast<int>(base));
        p.setSORTREAL(-9);
        p.PosX = base + 0.1;
        p.PosY = base + 0.2;
        p.Mark1 = true;
        p.TargetX = base + 0.3;
        p.TargetY = base + 0.4;
        p.Fade = 12.5;
        p.Scale = 1.75;
        p.BornAt = 3.000001;
        p.Value1 = -1e-300;
        p.Value2 = 1.0 / 3;
        p.Mark3 = true;
        p.Count1 = -2147483647;
        p.Count2 = 2;
        p.Count3 = 3;
        p.Solid = p.Reacting = p.Placed = true;
        p.ContactCount = 7;
        p.ReactFlash = 8;
    }

    static void expectFields(const cls_Molecule& p, const cls_Molecule& source) {
        EXPECT_EQ(p.tmp_Data.Key, source.tmp_Data.Key);
        EXPECT_EQ(p.PosX, source.PosX);
        EXPECT_EQ(p.PosY, source.PosY);
        EXPECT_EQ(p.Mark1, source.Mark1);
        EXPECT_EQ(p.TargetX, source.TargetX);
        EXPECT_EQ(p.TargetY, source.TargetY);
        EXPECT_EQ(p.Fade, source.Fade);
        EXPECT_EQ(p.Scale, source.Scale);
        EXPECT_EQ(p.BornAt, source.BornAt);
        EXPECT_EQ(p.Value1, source.Value1);
        EXPECT_EQ(p.Value2, source.Value2);
        EXPECT_EQ(p.Mark2, source.Mark2);
        EXPECT_EQ(p.Mark3, source.Mark3);
        EXPECT_EQ(p.Mark4, source.Mark4);
        EXPECT_EQ(p.Count1, source.Count1);
        EXPECT_EQ(p.Count2, source.Count2);
        EXPECT_EQ(p.Count3, source.Count3);
    }

    static void expectTransientDefaults(const cls_Molecule& p) {
        EXPECT_FALSE(p.Solid || p.Reacting || p.Placed);
        EXPECT_EQ(p.ContactCount, 0);
        EXPECT_EQ(p.ReactFlash, 0);
    }

    template <class T>
    static void write(Stream& stream, T value) {
        VariantArray item(1);
        item.front().value = value;
        stream.WriteItem(item);
    }
};

TEST_F(Storage, CopyTakesKeySortAndFieldsUpToTheLastCount) {
    cls_Molecule source;
    fill(source, 1);
    cls_Molecule copy;
    bool result = false;
    copy.DATA_DataCopy(source, result);
    EXPECT_TRUE(result);
    EXPECT_EQ(copy.SORTREAL(), -9);
    expectFields(copy, source);
    expectTransientDefaults(copy);
    EXPECT_EQ(copy.Parent, nullptr);
}

TEST_F(Storage, AStoredParticleHasNineteenItems) {
    cls_Molecule source;
    fill(source, 1);
    Stream out = Stream::writer();
    source.DATA_DataStore(out);
    Stream in = Stream::reader(out.bytes());
    std::vector<VariantArray> items;
    while (auto item = in.ReadItem()) {
        items.push_back(*item);
    }
    ASSERT_EQ(items.size(), 19u);
    EXPECT_EQ(std::get<std::string>(items[0][0].value), "1.0");
    EXPECT_EQ(std::get<std::string>(items[1][0].value), "K1");
    EXPECT_EQ(std::get<std::int32_t>(items[2][0].value), 9);
    EXPECT_EQ(std::get<double>(items[3][0].value), 1.1);
    EXPECT_TRUE(std::get<bool>(items[5][0].value));
    EXPECT_EQ(std::get<double>(items[8][0].value), 12.5);
    EXPECT_EQ(std::get<double>(items[9][0].value), 1.75);
    EXPECT_EQ(std::get<double>(items[10][0].value), 3.000001);
    EXPECT_EQ(std::get<std::int32_t>(items[18][0].value), 3);
}

TEST_F(Storage, ReadingRestoresAllButTheSort) {
    cls_Molecule source;
    fill(source, 1);
    Stream out = Stream::writer();
    source.DATA_DataStore(out);
    for (const int sort : {0, -5}) {
        cls_Molecule read;
        read.setSORTREAL(sort);
        Stream in = Stream::reader(out.bytes());
        read.DATA_DataRead(in);
        expectFields(read, source);
        expectTransientDefaults(read);
        EXPECT_EQ(read.SORTREAL(), sort);
    }
}

TEST_F(Storage, AForeignVersionIsIgnored) {
    Stream out = Stream::writer();
    write(out, std::string("2.0"));
    write(out, std::string("key"));
    cls_Molecule p;
    fill(p, 4);
    cls_Molecule same;
    fill(same, 4);
    Stream in = Stream::reader(out.bytes());
    p.DATA_DataRead(in);
    expectFields(p, same);
}

TEST_F(Storage, ABrokenStreamChangesNothing) {
    cls_Molecule source;
    fill(source, 1);
    Stream out = Stream::writer();
    source.DATA_DataStore(out);
    const std::string whole = out.bytes();
    cls_Molecule same;
    for (std::size_t length = 0; length + 2 < whole.size(); length += 3) {
        cls_Molecule read;
        Stream in = Stream::reader(whole.substr(0, length));
        EXPECT_THROW(read.DATA_DataRead(in), std::runtime_error) << length;
        expectFields(read, same);
    }
    Stream wrong = Stream::writer();
    write(wrong, std::string("1.0"));
    write(wrong, std::string("key"));
    write(wrong, std::int32_t{3});
    for (int i = 0; i < 16; ++i) {
        write(wrong, std::string("no number"));
    }
    cls_Molecule read;
    Stream in = Stream::reader(wrong.bytes());
    EXPECT_THROW(read.DATA_DataRead(in), std::runtime_error);
    expectFields(read, same);
}

TEST_F(Storage, PackedFormPutsTheScaleLast) {
    cls_Molecule source;
    fill(source, 1);
    std::string text;
    source.DATA_DataPACK(text);
    const auto values = Packer().Unpack(text);
    ASSERT_TRUE(values);
    ASSERT_EQ(values->size(), 18u);
    EXPECT_EQ(std::get<std::int32_t>((*values)[1].value), 9);
    EXPECT_EQ(std::get<double>((*values)[8].value), 3.000001);
    EXPECT_EQ(std::get<double>((*values)[17].value), 1.75);
    cls_Molecule read;
    read.setSORTREAL(4);
    read.DATA_DataUnpack(text);
    expectFields(read, source);
    EXPECT_EQ(read.SORTREAL(), 4);
    expectTransientDefaults(read);
}

TEST_F(Storage, WhatIsNoPackedParticleChangesNothing) {
    cls_Molecule same;
    cls_Molecule p;
    VariantArray values(18);
    for (const std::string& text : {std::string(), std::string("noise"), Packer().Pack(values),
                                    Packer().Pack(VariantArray(3))}) {
        p.DATA_DataUnpack(text);
        expectFields(p, same);
    }
}

TEST_F(Storage, SpawnGivesAnEmptyOne) {
    cls_Molecule source;
    fill(source, 1);
    std::shared_ptr<cls_Molecule> spawned;
    source.DATA_DataSpawn(spawned);
    ASSERT_NE(spawned, nullptr);
    EXPECT_EQ(spawned->PosX, 0);
    cls_Molecules beaker;
    beaker.CREATE(3, 1, 1);
    EXPECT_EQ(beaker.DATA_DataSpawn()->COUNT(), 0);
}

class StoredCollection : public Storage {
  protected:
    StoredCollection() {
        beaker.tmp_Data.Key = "beaker";
        for (int i = 1; i <= 3; ++i) {
            fill(beaker.CREATE(3, 0, 0), i);
        }
    }
    void expectRead(cls_Molecules& read) {
        EXPECT_EQ(read.tmp_Data.Key, "beaker");
        ASSERT_EQ(read.COUNT(), 3);
        for (int i = 1; i <= 3; ++i) {
            expectFields(read.ITEM(i), beaker.ITEM(i));
            EXPECT_EQ(read.ITEM(i).SORTREAL(), 0);
            EXPECT_EQ(read.particles()[static_cast<std::size_t>(i - 1)]->Parent, &read);
        }
    }
    cls_Molecules beaker;
};

TEST_F(StoredCollection, Copy) {
    cls_Molecules copy;
    copy.CREATE(1, 0, 0);
    bool result = false;
    copy.DATA_DataCopy(beaker, result);
    EXPECT_TRUE(result);
    EXPECT_EQ(copy.COUNT(), 3);
    EXPECT_EQ(copy.ITEM(2).SORTREAL(), -9);
    expectFields(copy.ITEM(2), beaker.ITEM(2));
    EXPECT_NE(&copy.ITEM(2), &beaker.ITEM(2));
    copy.DATA_DataCopy(copy, result);
    EXPECT_EQ(copy.COUNT(), 3);
}

TEST_F(StoredCollection, StoreAndRead) {
    Stream out = Stream::writer();
    beaker.DATA_DataStore(out);
    cls_Molecules read;
    read.CREATE(5, 0, 0);
    Stream in = Stream::reader(out.bytes());
    read.DATA_DataRead(in);
    expectRead(read);
    read.ITEM(1).THINK();
    EXPECT_EQ(read.COUNT(), 0); // without a sort all of them go
}

TEST_F(StoredCollection, AForeignVersionIsIgnored) {
    Stream out = Stream::writer();
    write(out, std::string("1.1"));
    write(out, std::string("other"));
    write(out, std::int32_t{0});
    Stream in = Stream::reader(out.bytes());
    beaker.DATA_DataRead(in);
    EXPECT_EQ(beaker.COUNT(), 3);
    EXPECT_EQ(beaker.tmp_Data.Key, "beaker");
}

TEST_F(StoredCollection, ACountThatLiesIsFoundOut) {
    Stream out = Stream::writer();
    write(out, std::string("1.0"));
    write(out, std::string("key"));
    write(out, std::int32_t{2'000'000'000});
    Stream in = Stream::reader(out.bytes());
    EXPECT_THROW(beaker.DATA_DataRead(in), std::runtime_error);
    EXPECT_EQ(beaker.COUNT(), 3);
    EXPECT_EQ(beaker.tmp_Data.Key, "beaker");
}

TEST_F(StoredCollection, PackAndUnpack) {
    const std::string text = beaker.DATA_DataPACK();
    cls_Molecules read;
    read.CREATE(5, 0, 0);
    read.DATA_DataUnpack(text);
    expectRead(read);
    read.DATA_DataUnpack("noise");
    read.DATA_DataUnpack(Packer().Pack(VariantArray(2)));
    expectRead(read);
}

TEST_F(StoredCollection, FilesSaveAndLoad) {
    EXPECT_TRUE(beaker.SAVE("store.txt", ""));
    cls_Molecules read;
    EXPECT_TRUE(read.LOAD("store.txt", ""));
    expectRead(read);
}

TEST_F(StoredCollection, FilesThatFailGiveFalse) {
    EXPECT_FALSE(beaker.LOAD("missing.txt", ""));
    host.files.write("noise.txt", "noise\n\x01");
    EXPECT_FALSE(beaker.LOAD("noise.txt", ""));
    host.files.write("empty.txt", "");
    EXPECT_FALSE(beaker.LOAD("empty.txt", ""));
    host.files.writable = false;
    EXPECT_FALSE(beaker.SAVE("store.txt", ""));
    EXPECT_EQ(beaker.COUNT(), 3);
}

} // namespace
} // namespace quendal::test
