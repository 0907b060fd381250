#include "particles/cls_Molecule.h"
#include "particles/reactions.h"
#include "particles/species.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace quendal::test {
namespace {

class Kinds : public testing::Test {
  protected:
    FakeHost host;
    cls_Molecule one;
    cls_Molecule other;

    void setSorts(int first, int second) {
        one.setSORTREAL(first);
        other.setSORTREAL(second);
    }
};

TEST_F(Kinds, SortKeepsItsSignOnlyAsStored) {
    one.setSORT(-9);
    EXPECT_EQ(one.SORTREAL(), -9);
    EXPECT_EQ(one.SORT(), 9);
}

TEST_F(Kinds, Radii) {
    const double expected[] = {5, 5, 4, 4, 3, 4, 5, 5, 5, 5, 5, 4, 5, 5, 5, 5, 5};
    for (int kind = 0; kind <= 16; ++kind) {
        one.setSORTREAL(-kind);
        EXPECT_EQ(one.RADIUS(), expected[kind]) << kind;
    }
}

TEST_F(Kinds, PlainColours) {
    const std::pair<int, Color> rows[] = {
        {1, {255, 0, 0}},      {2, {0, 255, 0}},      {3, {0, 0, 255}},  {4, {255, 255, 0}},
        {5, {255, 0, 255}},    {6, kBlack},           {7, kBlack},       {8, kBlack},
        {9, kBlack},           {10, kBlack},          {11, {255, 0, 0}}, {12, {192, 192, 192}},
        {13, {255, 255, 0}},   {14, {192, 192, 192}}, {15, kBlack},      {0, kBlack},
        {-12, {192, 192, 192}}};
    for (const auto& [sort, color] : rows) {
        one.setSORTREAL(sort);
        EXPECT_EQ(one.COLOR(), color) << sort;
    }
}

TEST_F(Kinds, ExactlyThesePairsReact) {
    const std::set<std::pair<int, int>> pairs{{1, 7}, {7, 1}, {3, 12}, {12, 3},
                                              {8, 9}, {9, 8}, {9, 10}, {10, 9}};
    for (int a = -40; a <= 40; ++a) {
        for (int b = -40; b <= 40; ++b) {
            setSorts(a, b);
            EXPECT_EQ(one.CANREACT(other), pairs.count({std::abs(a), std::abs(b)}) != 0)
                << a << " " << b;
        }
    }
}

struct ReactionRow {
    int one;
    int other;
    int oneBecomes;
    int otherBecomes;
    bool solid = false;
};

TEST_F(Kinds, WhatBecomesOfThem) {
    const ReactionRow rows[] = {
        {1, 7, 8, 3},           {7, 1, 8, 3},      {3, 12, 14, 0, true}, {12, 3, 14, 0, true},
        {-3, -12, 14, 0, true}, {8, 9, 1, 1},      {9, 8, 1, 1},         {-8, -9, 1, 1},
        {9, 10, 11, 1},         {-9, 10, 11, 1},   {-9, -10, 11, 1},     {10, 9, 11, 1},
        {10, -9, -11, 1},       {-10, -9, -11, 1}, {-10, 9, 11, 1},      {3, 5, 3, 5},
        {1, 1, 1, 1},           {0, 9, 0, 9},      {-8, 3, -8, 3},       {21, 1, 21, 1}};
    for (const ReactionRow& row : rows) {
        setSorts(row.one, row.other);
        one.Solid = other.Solid = false;
        one.REACT(other);
        EXPECT_EQ(one.SORTREAL(), row.oneBecomes) << row.one << " " << row.other;
        EXPECT_EQ(other.SORTREAL(), row.otherBecomes) << row.one << " " << row.other;
        EXPECT_EQ(one.Solid, row.solid) << row.one << " " << row.other;
        EXPECT_FALSE(other.Solid);
    }
}

TEST_F(Kinds, ContactBeginsBelowTheSumOfRadiiOverOneFifthMore) {
    setSorts(8, 9);
    other.PosX = 8.3;
    EXPECT_TRUE(one.COLL(other));
    other.PosX = 8.34;
    EXPECT_FALSE(one.COLL(other));
    setSorts(3, 4); // radii 4 and 3: below 5.833
    other.PosX = 5.8;
    EXPECT_TRUE(one.COLL(other));
    other.PosX = 5.84;
    EXPECT_FALSE(one.COLL(other));
}

TEST_F(Kinds, Distances) {
    one.PosX = 10;
    one.PosY = 20;
    one.TargetX = 13;
    one.TargetY = 16;
    other.PosX = 16;
    other.PosY = 28;
    EXPECT_EQ(one.DIST(other), 10);
    EXPECT_EQ(other.DIST(one), 10);
    EXPECT_EQ(one.DISTCORD(10, 15), 5);
    EXPECT_EQ(one.DISTTARGET(), 5);
}

} // namespace
} // namespace quendal::test
