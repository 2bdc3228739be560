// Registry files between this program and the registry editor of Windows.
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "engine/reg_file.h"
#include "tests/contract/subject.h"

namespace {

class TRegFileContract : public TContractTest {
  protected:
    std::wstring File() { return Folder() + L"\\file.reg"; }

    void Import(const TBytes& file) {
        std::ofstream(File().c_str(), std::ios::binary)
            .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
        ASSERT_EQ(_wsystem((L"reg import \"" + File() + L"\" >nul 2>nul").c_str()), 0);
    }

    TBytes Export() {
        const std::wstring key = std::wstring(L"HKCU") + kUserKey.Path;
        EXPECT_EQ(_wsystem((L"reg export " + key + L" \"" + File() + L"\" /y >nul 2>nul").c_str()), 0);
        std::ifstream file(File().c_str(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TRawValue Stored(const TRegistryTarget& target) {
        TRawValue value;
        EXPECT_EQ(System().Registry.ReadRaw({target.Root, target.Key, target.ValueName}, value),
                  TReadStatus::Found)
            << target.ValueName;
        return value;
    }
};

TRegistryTarget Value(const std::wstring& name, const std::wstring& key = L"") {
    return {kUserKey.Root, kUserKey.Path + 1 + key, name};
}

TOperation Written(const TRegistryTarget& target, const TRawValue& value) {
    return {.Target = target, .Effect = TRegistryEffect{TRegAction::Write, value}};
}

TEST_F(TRegFileContract, GoToAndFromTheRegistryEditor) {
    const TBytes text{'"', 0, '\\', 0, ';', 0, 0xE4, 0, 0x3D, 0xD8, 0, 0xDE, 0, 0};
    TChangeSet set{
        Written(Value(L""), {1, text}),
        Written(Value(L"q\"\\=]\x4E2D"), {2, text}),
        Written(Value(L"strings"), {7, TBytes(200)}),
        Written(Value(L"two lines"), {1, {'a', 0, '\r', 0, '\n', 0, 0, 0}}),
        Written(Value(L"none", L"\\b]["), {0, {1, 2, 3}}),
        Written(Value(L"binary", L"\\b]["), {3, TBytes(1000, 0xAB)}),
        Written(Value(L"number", L"\\b]["), {4, {0xFF, 0, 0, 0x80}}),
        Written(Value(L"long number", L"\\b]["), {11, {1, 2, 3, 4, 5, 6, 7, 8}}),
        Written(Value(L"other", L"\\b]["), {0xFEDCBA98, {0}}),
    };
    for (const std::uint32_t type : {0U, 2U, 3U, 4U, 7U, 11U})
        set.push_back(Written(Value(L"empty " + std::to_wstring(type), L"\\empty"), {type, {}}));
    Import(WriteRegFile(set));
    for (const TOperation& operation : set)
        EXPECT_EQ(Stored(std::get<TRegistryTarget>(operation.Target)),
                  std::get<TRegistryEffect>(operation.Effect).Value);

    const auto read = ReadRegFile(Export(), System().Windows);
    ASSERT_TRUE(std::holds_alternative<TChangeSet>(read)) << std::get<TRegFileError>(read).Line;
    EXPECT_EQ(std::get<TChangeSet>(read).size(), set.size()) << "no key is without a value";
    for (const TOperation& operation : std::get<TChangeSet>(read))
        EXPECT_EQ(Stored(std::get<TRegistryTarget>(operation.Target)),
                  std::get<TRegistryEffect>(operation.Effect).Value);

    TRegistryTarget key = Value(L"", L"\\b][");
    key.IsKey = true;
    const TRegistryEffect deleted{TRegAction::DeleteKey, {}};
    const TOperation undone{
        .Setting = L"s", .Target = key, .Effect = deleted, .Left = TRegistryContent{true}};
    const TOperation gone{.Target = Value(L""), .Effect = TRegistryEffect{TRegAction::DeleteValue, {}}};
    Import(WriteRegFile({undone, gone, {.Target = TServiceTarget{L"s"}, .Effect = TServiceStatus{}}}));
    EXPECT_EQ(System().Registry.SubKeys(key.Root, kUserKey.Path), std::vector<std::wstring>{L"empty"});
    EXPECT_EQ(System().Registry.Check({key.Root, kUserKey.Path, L""}, TRegistryView::Native),
              TReadStatus::Found);
    TRawValue value;
    EXPECT_EQ(System().Registry.ReadRaw({key.Root, kUserKey.Path, L""}, value), TReadStatus::ValueMissing);
}

}  // namespace
