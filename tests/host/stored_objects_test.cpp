#include "host/data_object.h"
#include "host/database_object.h"
#include "host/stream.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

TEST(DataObject, CompletesItsClassName) {
    test::FakeHost host;
    EXPECT_EQ(DataObject("cls_Molecule").ClassName, "cls_Molecule.Quendal");
    host.coreLib.classSuffix = "Test";
    EXPECT_EQ(DataObject("cls_Molecules").ClassName, "cls_Molecules.Test");
    EXPECT_EQ(DataObject("cls_Molecules").Key, "");
}

struct Named {
    std::string key;
};

class Shelf final : public DatabaseCallbacks<Named> {
  public:
    void DATABASE_DatabaseClear() override { items.clear(); }
    int DATABASE_DatabaseCount() const override { return static_cast<int>(items.size()); }
    void DATABASE_DatabaseImport(std::shared_ptr<Named> item,
                                 const std::optional<std::string>& key) override {
        item->key = key.value_or("");
        items.push_back(std::move(item));
    }
    Named& DATABASE_DatabaseItem(int index) override {
        return *items[static_cast<std::size_t>(index - 1)];
    }
    void DATABASE_DatabaseRemove(int index) override { items.erase(items.begin() + index - 1); }
    int DATABASE_DatabaseSearch(const std::string& key) const override {
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (items[i]->key == key) {
                return static_cast<int>(i) + 1;
            }
        }
        return 0;
    }

    std::vector<std::shared_ptr<Named>> items;
};

class Database : public testing::Test {
  protected:
    Database() {
        for (const char* key : {"A", "B", "C"}) {
            shelf.DATABASE_DatabaseImport(std::make_shared<Named>(), key);
        }
    }
    Shelf shelf;
    DatabaseObject<Named> database{shelf};
};

TEST_F(Database, ReachesItemsByKeyAndByIndex) {
    EXPECT_EQ(database.Count(), 3);
    EXPECT_TRUE(database.Exists("B"));
    EXPECT_FALSE(database.Exists("D"));
    EXPECT_TRUE(database.Exists(3));
    EXPECT_FALSE(database.Exists(0));
    EXPECT_FALSE(database.Exists(4));
    EXPECT_EQ(database.ItemOf("C").key, "C");
    EXPECT_EQ(database.ItemOf(1).key, "A");
    EXPECT_THROW(database.ItemOf("D"), std::out_of_range);
    EXPECT_THROW(database.ItemOf(4), std::out_of_range);
}

TEST_F(Database, Removes) {
    EXPECT_TRUE(database.Remove("B"));
    EXPECT_FALSE(database.Remove("B"));
    EXPECT_TRUE(database.Remove(1));
    EXPECT_FALSE(database.Remove(2));
    EXPECT_EQ(database.Count(), 1);
    EXPECT_EQ(database.ItemOf(1).key, "C");
}

class Note final : public Storable {
  public:
    void DATA_DataStore(Stream& stream) override { stream.WriteItem({{text}}); }
    void DATA_DataRead(Stream& stream) override {
        if (const auto item = stream.ReadItem()) {
            text = std::get<std::string>(item->at(0).value);
        }
    }
    std::string text;
};

TEST(DataObject, LetsAnObjectStoreAndReadItself) {
    const test::FakeHost host;
    DataObject data("cls_Note");
    Note note;
    note.text = "merken";
    Stream writer = Stream::writer();
    data.Store(note, writer);
    Note copy;
    Stream reader = Stream::reader(writer.bytes());
    data.Read(copy, reader);
    EXPECT_EQ(copy.text, "merken");
}

} // namespace
} // namespace quendal
