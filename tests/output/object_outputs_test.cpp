// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_outputs.h"

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

using namespace CommonInterfaces;

namespace {

template <class Record, class Field>
std::ptrdiff_t Offset(const Record& record, const Field& field) {
  return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&record);
}

static_assert(std::is_trivially_copyable_v<DeepskyImageDrawData>);
static_assert(std::is_trivially_copyable_v<Deepsky3DDrawData>);
static_assert(std::is_nothrow_move_constructible_v<StarOutput>);
static_assert(std::has_virtual_destructor_v<BaseOutput>);

TEST(ObjectOutputsTest, FieldsStandInOrderWithTheirWidths) {
  // The first field follows the pointer to the virtual table; everything behind moves with that pointer's
  // width.
  constexpr std::ptrdiff_t w = sizeof(void*);
  StarOutput star;
  EXPECT_EQ(Offset(star, star.m_Frame), w);
  EXPECT_EQ(Offset(star, star.m_Place), w + 4);
  EXPECT_EQ(Offset(star, star.m_OnScreen), w + 20);
  EXPECT_EQ(Offset(star, star.m_LabelIndex), w + 24);
  EXPECT_EQ(Offset(star, star.m_Drawn), w + 28);
  EXPECT_EQ(Offset(star, star.m_AsDisc), w + 29);
  EXPECT_EQ(Offset(star, star.m_Highlighted), w + 30);

  DeepskyOutput deep;
  EXPECT_EQ(Offset(deep, deep.m_SymbolDrawn), w + 29);
  EXPECT_EQ(Offset(deep, deep.m_MajorSize), w + 32);
  EXPECT_EQ(Offset(deep, deep.m_MinorSize), w + 36);
  EXPECT_EQ(Offset(deep, deep.m_Color), w + 40);
  EXPECT_EQ(Offset(deep, deep.m_ImageDrawn), w + 44);
  EXPECT_EQ(Offset(deep, deep.m_Texture), w + 48);
  EXPECT_EQ(Offset(deep, deep.m_ImageLetter), w + 52);
  EXPECT_EQ(Offset(deep, deep.m_ImageDrawData), w + 56);
  EXPECT_EQ(Offset(deep, deep.m_ModelDrawData), w + 56 + w);
}

TEST(ObjectOutputsTest, BaseFieldsHaveTheirConstructionValues) {
  const BaseOutput output;
  EXPECT_EQ(output.m_Frame, 0u);
  const unsigned char zero[16] = {};
  EXPECT_EQ(std::memcmp(&output.m_Place, zero, 16), 0);
  EXPECT_EQ(output.m_LabelIndex, -1);
  EXPECT_FALSE(output.m_Drawn);
}

TEST(ObjectOutputsTest, FlagsThatConstructionLeavesAloneKeepWhatTheMemoryHeld) {
  OutputPool pool(1024, 1);
  std::memset(pool.getMem(64), 0xAB, 64);
  pool.clear(false);
  auto* star = new (pool) StarOutput;
  ASSERT_NE(star, nullptr);
  EXPECT_EQ(star->m_OnScreen, 0xAB);
  EXPECT_EQ(star->m_AsDisc, 0xAB);
  EXPECT_EQ(star->m_Highlighted, 0);
  star->~StarOutput();
}

TEST(ObjectOutputsTest, DeepskyFieldsHaveTheirConstructionValues) {
  const DeepskyOutput deep;
  EXPECT_EQ(deep.m_Frame, 0u);
  EXPECT_EQ(deep.m_LabelIndex, -1);
  EXPECT_FALSE(deep.m_SymbolDrawn);
  EXPECT_EQ(deep.m_MajorSize, -1.0f);
  EXPECT_EQ(deep.m_MinorSize, -1.0f);
  EXPECT_EQ(deep.m_Color, 0u);
  EXPECT_FALSE(deep.m_ImageDrawn);
  EXPECT_EQ(deep.m_Texture, 0u);
  EXPECT_EQ(deep.m_ImageLetter, ' ');
  EXPECT_EQ(deep.m_ImageDrawData, nullptr);
  EXPECT_EQ(deep.m_ModelDrawData, nullptr);
}

StarOutput FilledStar() {
  StarOutput star;
  star.m_Frame = 7;
  star.m_Place = {1.0f, 2.0f, 3.0f, 4.0f};
  star.m_OnScreen = 1;
  star.m_LabelIndex = 12;
  star.m_Drawn = true;
  star.m_AsDisc = 1;
  star.m_Highlighted = 1;
  return star;
}

void ExpectFilled(const StarOutput& star) {
  EXPECT_EQ(star.m_Frame, 7u);
  const ScreenPlace place{1.0f, 2.0f, 3.0f, 4.0f};
  EXPECT_EQ(std::memcmp(&star.m_Place, &place, sizeof place), 0);
  EXPECT_EQ(star.m_OnScreen, 1);
  EXPECT_EQ(star.m_LabelIndex, 12);
  EXPECT_TRUE(star.m_Drawn);
  EXPECT_EQ(star.m_AsDisc, 1);
  EXPECT_EQ(star.m_Highlighted, 1);
}

TEST(ObjectOutputsTest, EveryWayOfCopyingAStarCopiesEveryField) {
  StarOutput source = FilledStar();
  const StarOutput copied(source);
  ExpectFilled(copied);
  StarOutput assigned;
  assigned = source;
  ExpectFilled(assigned);
  const StarOutput moved(std::move(source));
  ExpectFilled(moved);
  StarOutput moveAssigned;
  moveAssigned = std::move(assigned);
  ExpectFilled(moveAssigned);
}

TEST(ObjectOutputsTest, CopiesOfADeepskyRecordShareBothPointers) {
  DeepskyOutput original;
  Deepsky3DDrawData model{};
  original.m_OnScreen = 1;
  original.m_ImageDrawData = new DeepskyImageDrawData{};
  original.m_ModelDrawData = &model;
  original.m_ImageLetter = 'B';
  DeepskyOutput copied(original), assigned;
  assigned = original;
  for (DeepskyOutput* copy : {&copied, &assigned}) {
    EXPECT_EQ(copy->m_ImageDrawData, original.m_ImageDrawData);
    EXPECT_EQ(copy->m_ModelDrawData, &model);
    EXPECT_EQ(copy->m_ImageLetter, 'B');
    EXPECT_EQ(copy->m_OnScreen, 1);
    copy->m_ImageDrawData = nullptr;  // the data has one owner: the original
  }
}

TEST(ObjectOutputsTest, DeepskyDestructorDeletesTheImageDataAndLeavesTheModelAlone) {
  const auto model = std::make_unique<Deepsky3DDrawData>();
  model->m_Diameter = 5.0;
  {
    DeepskyOutput deep;
    deep.m_ImageDrawData = new DeepskyImageDrawData{};  // the leak checker misses it when it is not deleted
    deep.m_ModelDrawData = model.get();
  }
  EXPECT_EQ(model->m_Diameter, 5.0);
}

TEST(ObjectOutputsTest, DeletingThroughTheBaseRunsTheDerivedDestructor) {
  auto* deep = new DeepskyOutput;
  deep->m_ImageDrawData = new DeepskyImageDrawData{};
  const std::unique_ptr<BaseOutput> base(deep);
  EXPECT_EQ(base->m_LabelIndex, -1);
}

TEST(ObjectOutputsTest, RecordsPlacedInAPoolAreItsMemoryAndThoseOfTheHeapAreNot) {
  OutputPool pool(4096, 1);
  auto* star = new (pool) StarOutput;
  auto* deep = new (pool) DeepskyOutput;
  auto* image = new (pool) DeepskyImageDrawData;
  auto* model = new (pool) Deepsky3DDrawData;
  for (void* record : {static_cast<void*>(star), static_cast<void*>(deep), static_cast<void*>(image),
                       static_cast<void*>(model)}) {
    EXPECT_TRUE(pool.isPoolMemory(record));
  }
  EXPECT_EQ(reinterpret_cast<char*>(deep) - reinterpret_cast<char*>(star),
            std::ptrdiff_t{sizeof(StarOutput)});
  const auto heap = std::make_unique<StarOutput>();
  EXPECT_FALSE(pool.isPoolMemory(heap.get()));
}

TEST(ObjectOutputsTest, AnExhaustedPoolGivesNullAndConstructsNothing) {
  OutputPool pool(16, 1);
  EXPECT_EQ(new (pool) StarOutput, nullptr);
  EXPECT_EQ(new (pool) DeepskyOutput, nullptr);
  EXPECT_EQ(new (pool) DeepskyImageDrawData, nullptr);
  EXPECT_EQ(new (pool) Deepsky3DDrawData, nullptr);
}

template <class Record>
void ExpectTheUsualFormsOfNew() {
  const std::unique_ptr<Record> heap(new (std::nothrow) Record);
  EXPECT_NE(heap, nullptr);
  alignas(Record) unsigned char place[sizeof(Record)];
  auto* const record = new (place) Record;
  EXPECT_EQ(static_cast<void*>(record), static_cast<void*>(place));
  record->~Record();
}

TEST(ObjectOutputsTest, RecordsAreMadeWithoutThrowingAndInMemoryOfTheCaller) {
  ExpectTheUsualFormsOfNew<StarOutput>();
  ExpectTheUsualFormsOfNew<DeepskyOutput>();
  ExpectTheUsualFormsOfNew<DeepskyImageDrawData>();
  ExpectTheUsualFormsOfNew<Deepsky3DDrawData>();
}

TEST(ObjectOutputsTest, DrawDataRecordsAreCopiedAsAWhole) {
  DeepskyImageDrawData image{{1, 2, 3, 4}, {5, 6, 7, 8}, 9, 10, 11, 12, 13}, imageCopy{};
  imageCopy = image;
  EXPECT_EQ(std::memcmp(&imageCopy, &image, sizeof image), 0);
  Deepsky3DDrawData model{{1, 2, 3}, {4, 5, 6}, 7}, modelCopy{};
  modelCopy = std::move(model);
  EXPECT_EQ(modelCopy.m_Center[0], 1.0);
  EXPECT_EQ(modelCopy.m_Orientation[2], 6.0);
  EXPECT_EQ(modelCopy.m_Diameter, 7.0);
}

}  // namespace
