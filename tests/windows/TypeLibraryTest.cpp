// The type library that the module carries, as a host's tools see it.
#include <StReuse.h>
#include <gtest/gtest.h>

#include "entry/com/Bstr.h"
#include "platform/win32/ComPtr.h"
#include "windows/Server.h"

namespace orvik::test {
namespace {

using com::Bstr;

class TypeLibraryTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(::LoadTypeLibEx(BuildPath(L"StReuse.dll").c_str(), REGKIND_NONE, library_.Out()),
              S_OK);
  }

  ComPtr<ITypeInfo> Find(const char* name) {
    Bstr text{std::string_view(name)};
    ComPtr<ITypeInfo> type;
    MEMBERID member = 0;
    USHORT count = 1;
    EXPECT_EQ(library_->FindName(text.Get(), 0, type.Out(), &member, &count), S_OK);
    EXPECT_EQ(count, 1) << name;
    return type;
  }

  const Apartment apartment_;
  ComPtr<ITypeLib> library_;
};

std::string TypeName(ITypeInfo& scope, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_PTR:
      return TypeName(scope, *type.lptdesc) + "*";
    case VT_R4:
      return "Single";
    case VT_I2:
      return "Integer";
    case VT_BSTR:
      return "String";
    case VT_BOOL:
      return "Boolean";
    case VT_VARIANT:
      return "Variant";
    case VT_VOID:
      return "Nothing";
    case VT_USERDEFINED: {
      ComPtr<ITypeInfo> user;
      Bstr name;
      if (FAILED(scope.GetRefTypeInfo(type.hreftype, user.Out()))) return "?";
      user->GetDocumentation(MEMBERID_NIL, name.Out(), nullptr, nullptr, nullptr);
      return name.Utf8();
    }
    default:
      return "type " + std::to_string(type.vt);
  }
}

// "3 CloseFile() As Boolean", with "Get " before the name of a property.
std::string Describe(ITypeInfo& type, UINT index) {
  FUNCDESC* function = nullptr;
  if (FAILED(type.GetFuncDesc(index, &function))) return "?";
  BSTR names[8] = {};
  UINT count = 0;
  type.GetNames(function->memid, names, 8, &count);
  std::string text = std::to_string(function->memid) +
                     (function->invkind == INVOKE_PROPERTYGET ? " Get " : " ") +
                     com::Utf8FromBstr(names[0]) + "(";
  for (int i = 0; i < function->cParams; ++i) {
    const ELEMDESC& parameter = function->lprgelemdescParam[i];
    text += (i > 0 ? ", " : "") + com::Utf8FromBstr(names[i + 1]) + " As " +
            TypeName(type, parameter.tdesc);
  }
  text += ") As " + TypeName(type, function->elemdescFunc.tdesc);
  for (BSTR name : names) ::SysFreeString(name);
  type.ReleaseFuncDesc(function);
  return text;
}

// Compares the interface with its last `expected` functions; the seven of IDispatch may be listed
// before them.
void ExpectInterface(ITypeInfo& type, REFGUID iid, const std::vector<std::string>& expected) {
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(type.GetTypeAttr(&attributes), S_OK);
  const UINT count = attributes->cFuncs;
  EXPECT_TRUE(attributes->guid == iid);
  EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FDUAL);
  type.ReleaseTypeAttr(attributes);
  ASSERT_GE(count, expected.size());
  std::vector<std::string> found;
  for (UINT i = count - static_cast<UINT>(expected.size()); i < count; ++i) {
    found.push_back(Describe(type, i));
  }
  EXPECT_EQ(found, expected);
}

TEST_F(TypeLibraryTest, TheEntryObjectHasItsOperationsInTheirOrder) {
  ExpectInterface(*Find("IclsStReuse").Get(), __uuidof(IclsStReuse),
                  {"1 Print_Remote(MyPrinter As Variant, Mode As Integer, ParamString1 As String, "
                   "ParamString2 As String) As Nothing",
                   "2 Show(Mode As Integer, ParamString1 As String*, ParamString2 As String*, "
                   "ParamString3 As String*) As Integer",
                   "3 MakeDirectory(Path As String) As Boolean"});
}

TEST_F(TypeLibraryTest, TheStreamHasItsOperationsInTheirOrder) {
  const std::vector<std::string> expected = {
      "1 ScanSingle(sVal As Single*) As Boolean",
      "2 OpenFile(strFileName As String, Mode As enumIOStreamMode) As Boolean",
      "3 CloseFile() As Boolean",
      "4 IsOpened() As Boolean",
      "5 Get FileName() As String",
      "6 ScanString(TargetString As String*) As Boolean",
      "7 WriteString(txt As String) As Boolean",
      "8 EndOfFile() As Boolean",
      "9 ScanInteger(i As Integer*) As Boolean",
      "10 Get Buffer() As String"};
  ExpectInterface(*Find("IclsIOStream").Get(), __uuidof(IclsIOStream), expected);
}

TEST_F(TypeLibraryTest, TheEnumerationHasItsFiveValues) {
  const ComPtr<ITypeInfo> type = Find("enumIOStreamMode");
  const char* const names[] = {"None", "AsciiFileInput", "AsciiFileOutput", "AsciiBufferInput",
                               "AsciiBufferOutput"};
  for (UINT i = 0; i < 5; ++i) {
    VARDESC* variable = nullptr;
    ASSERT_EQ(type->GetVarDesc(i, &variable), S_OK);
    Bstr name;
    UINT count = 0;
    EXPECT_EQ(type->GetNames(variable->memid, name.Out(), 1, &count), S_OK);
    EXPECT_EQ(name.Utf8(), names[i]);
    VARIANT value{};
    EXPECT_EQ(::VariantChangeType(&value, variable->lpvarValue, 0, VT_I4), S_OK);
    EXPECT_EQ(value.lVal, static_cast<long>(i));
    type->ReleaseVarDesc(variable);
  }
}

TEST_F(TypeLibraryTest, TheClassesCanBeCreated) {
  const struct {
    const char* name;
    GUID clsid;
  } rows[] = {{"clsIOStream", __uuidof(::clsIOStream)}, {"clsStReuse", __uuidof(::clsStReuse)}};
  for (const auto& row : rows) {
    const ComPtr<ITypeInfo> type = Find(row.name);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK) << row.name;
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS) << row.name;
    EXPECT_TRUE(attributes->guid == row.clsid) << row.name;
    EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FCANCREATE) << row.name;
    type->ReleaseTypeAttr(attributes);
  }
}

TEST_F(TypeLibraryTest, TheLibraryHasItsNameAndVersion) {
  Bstr name;
  Bstr help;
  EXPECT_EQ(library_->GetDocumentation(-1, name.Out(), help.Out(), nullptr, nullptr), S_OK);
  EXPECT_EQ(name.Utf8(), "StReuse");
  EXPECT_EQ(help.Utf8(), "ORVIK 3.3 Stormwater Harvesting Module");
  TLIBATTR* attributes = nullptr;
  ASSERT_EQ(library_->GetLibAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->wMajorVerNum, 3);
  EXPECT_EQ(attributes->wMinorVerNum, 3);
  EXPECT_EQ(attributes->syskind, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
  library_->ReleaseTLibAttr(attributes);
}

}  // namespace
}  // namespace orvik::test
