// Printing through the spooler on the print server of scripts/with-printer, whose queue "PDF" is
// the default printer.
#include <gtest/gtest.h>
#include <ole2.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <memory>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "QueueDc.h"
#include "entry/com/Bstr.h"
#include "entry/com/ComError.h"
#include "entry/com/PrinterArgument.h"
#include "entry/com/Variant.h"
#include "platform/win32/GdiPrinter.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using com::MakePrinter;
using test::QueueDc;
using test::ReadBytes;

TEST(PrinterDc, OpensTheDefaultPrinterAndOneByName) {
  EXPECT_TRUE(PrinterDc::OpenDefault());
  EXPECT_TRUE(PrinterDc::Open("PDF"));
  EXPECT_FALSE(PrinterDc::Open("No such printer"));
  EXPECT_FALSE(PrinterDc::Open(""));
}

TEST(PrinterDc, BorrowsPrintersOnly) {
  const QueueDc queue;
  ASSERT_TRUE(queue.Get());
  EXPECT_TRUE(PrinterDc::Borrow(queue.Get()));
  EXPECT_FALSE(PrinterDc::Borrow(nullptr));
  EXPECT_FALSE(PrinterDc::Borrow(reinterpret_cast<HDC>(0x1234)));
  HDC memory = ::CreateCompatibleDC(nullptr);
  EXPECT_FALSE(PrinterDc::Borrow(memory)) << "a picture in memory";
  ::DeleteDC(memory);
}

// What the spooler records takes brushes and pens of our own, and nothing can be flipped in it.
TEST(GdiPrinter, IsNoScreen) {
  const QueueDc queue;
  EXPECT_FALSE(DrawsAtOnce(queue.Get()));
  EXPECT_FALSE(GdiSurface(queue.Get()).Supports(SurfaceFeature::ExclusiveOr));
  const MemoryDc picture(::CreateCompatibleDC(nullptr));
  EXPECT_TRUE(DrawsAtOnce(picture.get()));
  const HDC metafile = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
  EXPECT_FALSE(DrawsAtOnce(metafile));
  ::DeleteEnhMetaFile(::CloseEnhMetaFile(metafile));
}

TEST(GdiPrinter, TellsItsPaperInItsOwnPixels) {
  for (const short dpi : {short{300}, short{600}, short{1200}}) {
    const QueueDc queue(dpi);
    const GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
    EXPECT_EQ(printer.Resolution(), dpi);
    EXPECT_EQ(printer.PaperSize(), (Size{dpi * 17 / 2, dpi * 11}));
    EXPECT_EQ(printer.PrintableArea(), (Area{dpi / 4, dpi / 4, dpi * 33 / 4, dpi * 43 / 4})) << dpi;
  }
}

TEST(GdiPrinter, A4IsAsLargeAsItIs) {
  const QueueDc queue(1200, DMPAPER_A4);
  const GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
  // 595 x 842 points, as the printer's description rounds it.
  EXPECT_EQ(printer.PaperSize(), (Size{595 * 1200 / 72, 842 * 1200 / 72}));
}

// 16-bit positions hold a page of 1200 pixels to the inch, and finer ones are not needed.
TEST(GdiPrinter, FinerPrintersAreUsedAt1200PixelsToTheInch) {
  const QueueDc queue(2400);
  const GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
  EXPECT_EQ(printer.Resolution(), 1200);
  EXPECT_EQ(printer.PaperSize(), (Size{10200, 13200}));
}

// The queue's number for the paper of this name; 0 for none.
short PaperNamed(std::wstring_view wanted) {
  constexpr std::size_t kNameLength = 64;
  const int count = ::DeviceCapabilitiesW(L"PDF", nullptr, DC_PAPERS, nullptr, nullptr);
  std::vector<WORD> numbers(static_cast<std::size_t>(std::max(0, count)));
  std::vector<wchar_t> names(numbers.size() * kNameLength);
  ::DeviceCapabilitiesW(L"PDF", nullptr, DC_PAPERS, reinterpret_cast<wchar_t*>(numbers.data()),
                        nullptr);
  ::DeviceCapabilitiesW(L"PDF", nullptr, DC_PAPERNAMES, names.data(), nullptr);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::wstring_view name(&names[i * kNameLength], kNameLength);
    if (name.substr(0, name.find(L'\0')) == wanted) return static_cast<short>(numbers[i]);
  }
  return 0;
}

// 36 x 48 inches: at 1200 pixels to the inch it would end at 57600.
TEST(GdiPrinter, ALargePlotterIsUsedAsFineAs16BitsReach) {
  const short paper = PaperNamed(L"Arch E");
  ASSERT_NE(paper, 0);
  const QueueDc queue(1200, paper);
  const GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
  EXPECT_EQ(printer.Resolution(), 682);  // 32767 / 48 = 682.6
  EXPECT_EQ(printer.PaperSize(), (Size{36 * 682, 48 * 682}));
}

TEST(GdiPrinter, MeasuresTextInItsOwnPixels) {
  std::vector<int> widths;
  for (const short dpi : {short{600}, short{1200}, short{2400}}) {
    const QueueDc queue(dpi);
    GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
    const int pixelsFor72Points = printer.Resolution();
    const Size size = printer.MeasureText("Harvesting", {.pixelHeight = pixelsFor72Points});
    // Liberation Sans: H 0.722, a, e, n, g 0.556 each, r 0.333, v and s 0.5, t 0.278, i 0.222.
    const double ems = 0.722 + 4 * 0.556 + 0.333 + 2 * 0.5 + 0.278 + 0.222;
    EXPECT_NEAR(size.width, ems * pixelsFor72Points, 0.01 * pixelsFor72Points) << dpi;
    EXPECT_NEAR(size.height, 1.117 * pixelsFor72Points, 0.05 * pixelsFor72Points) << dpi;
  }
}

TEST(GdiPrinter, LeavesABorrowedDeviceContextAsItWas) {
  const QueueDc queue;
  ::SetMapMode(queue.Get(), MM_TEXT);
  ::SetViewportOrgEx(queue.Get(), 3, 5, nullptr);
  {
    GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
    EXPECT_EQ(printer.StartDocument("Borrowed"), DocumentStart::Started);
    printer.FillArea({100, 100, 200, 200}, kRed);
    printer.EndDocument();
  }
  POINT origin{};
  ::GetViewportOrgEx(queue.Get(), &origin);
  EXPECT_EQ(::GetMapMode(queue.Get()), MM_TEXT);
  EXPECT_EQ(origin.x, 3);
  EXPECT_EQ(origin.y, 5);
}

// The document of this title that the print server has made; empty while there is none.
std::string DocumentOf(const std::string& title) {
  const std::filesystem::path folder = std::string("Z:") + std::getenv("PRINTED");
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".pdf") continue;
    std::string bytes = ReadBytes(entry.path().string());
    if (bytes.find("/Title(" + title + ")") != std::string::npos) return bytes;
  }
  return {};
}

bool IsPrinted(const std::string& title) {
  return !DocumentOf(title).empty();
}

bool IsPrintedSoon(const std::string& title) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!IsPrinted(title) && std::chrono::steady_clock::now() < deadline) ::Sleep(20);
  return IsPrinted(title);
}

int CountPages(const std::string& pdf) {
  const std::regex page("/Type\\s*/Page[^s]");
  return static_cast<int>(
      std::distance(std::sregex_iterator(pdf.begin(), pdf.end(), page), std::sregex_iterator()));
}

TEST(GdiPrinter, JoinsTheDocumentThatTheOwnerHasBegun) {
  const QueueDc queue;
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = L"Joined by us";
  ASSERT_GT(::StartDocW(queue.Get(), &document), 0);
  {
    GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
    EXPECT_EQ(printer.StartDocument("Ours"), DocumentStart::Started);
    printer.FillArea({100, 100, 200, 200}, kRed);
    printer.NewPage();
    EXPECT_EQ(printer.PageNumber(), 2);
    printer.EndDocument();
  }
  EXPECT_FALSE(IsPrinted("Joined by us")) << "the owner ends it";
  EXPECT_GT(::EndDoc(queue.Get()), 0);
  ASSERT_TRUE(IsPrintedSoon("Joined by us"));
  EXPECT_EQ(CountPages(DocumentOf("Joined by us")), 2);
  EXPECT_FALSE(IsPrinted("Ours"));
}

// It takes neither a document nor a page: nobody has begun one on it.
TEST(GdiPrinter, ABorrowedDeviceContextWithoutAConnectionIsUnreachable) {
  QueueDc queue;
  GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
  queue.Delete();
  ::SetLastError(ERROR_CANCELLED);  // of a call long before
  EXPECT_EQ(printer.StartDocument("Lost"), DocumentStart::Unreachable);
}

TEST(GdiPrinter, ADocumentThatIsNotEndedIsNotPrinted) {
  const QueueDc queue;
  {
    GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
    ASSERT_EQ(printer.StartDocument("Never printed"), DocumentStart::Started);
    printer.FillArea({100, 100, 200, 200}, kRed);
  }
  {
    GdiPrinter printer(PrinterDc::Open("PDF"));
    ASSERT_EQ(printer.StartDocument("Printed"), DocumentStart::Started);
    printer.FillArea({100, 100, 200, 200}, kRed);
    printer.EndDocument();
  }
  EXPECT_TRUE(IsPrintedSoon("Printed"));
  EXPECT_FALSE(IsPrinted("Never printed")) << "the queue keeps the order";
}

TEST(GdiPrinter, APrinterThatGoesAwayInTheMiddleSaysSo) {
  QueueDc queue;
  GdiPrinter printer(PrinterDc::Borrow(queue.Get()));
  ASSERT_EQ(printer.StartDocument("Broken"), DocumentStart::Started);
  printer.FillArea({100, 100, 200, 200}, kRed);
  queue.Delete();
  EXPECT_THROW(printer.NewPage(), PrinterError);
  EXPECT_THROW(printer.EndDocument(), PrinterError);
}

// --- The forms in which a host names its printer ---

class PrinterObject final : public IDispatch {
 public:
  // An object with these properties; an Empty one is not there.
  com::Variant hDC;
  com::Variant deviceName;
  bool hasProperties = true;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (iid != IID_IUnknown && (iid != IID_IDispatch || !hasProperties)) return E_NOINTERFACE;
    *object = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                          DISPID* ids) override {
    const std::wstring name = names[0];
    if (name == L"hDC" && hDC.Type() != VT_EMPTY) return *ids = 1, S_OK;
    if (name == L"DeviceName" && deviceName.Type() != VT_EMPTY) return *ids = 2, S_OK;
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    return ::VariantCopy(result, id == 1 ? hDC.Get() : deviceName.Get());
  }
};

void Put(com::Variant& variant, std::string_view text) {
  VARIANT& place = *variant.Out();
  place.vt = VT_BSTR;
  place.bstrVal = com::Bstr(text).Release();
}

void Put(com::Variant& variant, HDC handle) {
  variant->vt = VT_I4;
  variant->lVal = static_cast<LONG>(reinterpret_cast<LONG_PTR>(handle));
}

TEST(PrinterArgument, NothingIsTheDefaultPrinter) {
  com::Variant empty;
  EXPECT_TRUE(MakePrinter(*empty.Get()));
  com::Variant null;
  null->vt = VT_NULL;
  EXPECT_TRUE(MakePrinter(*null.Get()));
  com::Variant nothing;
  nothing->vt = VT_DISPATCH;
  nothing->pdispVal = nullptr;
  EXPECT_TRUE(MakePrinter(*nothing.Get()));
  com::Variant leftOut;
  leftOut->vt = VT_ERROR;
  leftOut->scode = DISP_E_PARAMNOTFOUND;
  EXPECT_TRUE(MakePrinter(*leftOut.Get()));
  com::Variant noName;
  Put(noName, "");
  EXPECT_TRUE(MakePrinter(*noName.Get()));
}

TEST(PrinterArgument, AName) {
  com::Variant name;
  Put(name, "PDF");
  EXPECT_TRUE(MakePrinter(*name.Get()));
  com::Variant other;
  Put(other, "No such printer");
  EXPECT_FALSE(MakePrinter(*other.Get()));
}

TEST(PrinterArgument, ADeviceContextAsAnyNumber) {
  const QueueDc queue(600);
  for (const VARTYPE type : {VT_I4, VT_I8, VT_R8, VT_UI4, VT_CY, VT_DECIMAL}) {
    com::Variant handle;
    Put(handle, queue.Get());
    handle->lVal = static_cast<LONG>(reinterpret_cast<LONG_PTR>(queue.Get()));
    com::Variant number;
    ASSERT_EQ(::VariantChangeType(number.Get(), handle.Get(), 0, type), S_OK) << type;
    const auto printer = MakePrinter(*number.Get());
    ASSERT_TRUE(printer) << type;
    EXPECT_EQ(printer->Resolution(), 600) << type;
  }
  com::Variant zero;
  zero->vt = VT_I2;
  zero->iVal = 0;
  EXPECT_FALSE(MakePrinter(*zero.Get()));
  zero->vt = VT_R4;  // holds 24 of a handle's bits, if there are no more
  zero->fltVal = 0;
  EXPECT_FALSE(MakePrinter(*zero.Get()));
}

TEST(PrinterArgument, AnObjectWithADeviceContextOrAName) {
  const QueueDc queue(600);
  PrinterObject object;
  com::Variant given;
  given->vt = VT_DISPATCH;
  given->pdispVal = &object;
  EXPECT_THROW(MakePrinter(*given.Get()), com::ComError) << "neither";
  Put(object.deviceName, "");
  EXPECT_THROW(MakePrinter(*given.Get()), com::ComError) << "a name that names none";
  Put(object.deviceName, "PDF");
  EXPECT_TRUE(MakePrinter(*given.Get()));
  Put(object.hDC, queue.Get());
  const auto printer = MakePrinter(*given.Get());
  ASSERT_TRUE(printer);
  EXPECT_EQ(printer->Resolution(), 600) << "the device context comes first";
  object.hDC->lVal = 0;
  EXPECT_TRUE(MakePrinter(*given.Get())) << "no device context: its name";
  object.hDC->lVal = 0x1234;
  EXPECT_TRUE(MakePrinter(*given.Get())) << "not a printer's device context: its name";
  Put(object.deviceName, "No such printer");
  EXPECT_FALSE(MakePrinter(*given.Get()));
  Put(object.deviceName, "");
  EXPECT_FALSE(MakePrinter(*given.Get())) << "only a device context that is no printer's";
}

TEST(PrinterArgument, AnObjectThatDoesNotSayItHasProperties) {
  PrinterObject object;
  Put(object.deviceName, "PDF");
  com::Variant given;
  given->vt = VT_UNKNOWN;
  given->punkVal = &object;
  EXPECT_TRUE(MakePrinter(*given.Get()));
  object.hasProperties = false;
  EXPECT_THROW(MakePrinter(*given.Get()), com::ComError);
}

TEST(PrinterArgument, AReferenceToAVariantCountsAsWhatItRefersTo) {
  com::Variant name;
  Put(name, "PDF");
  VARIANT reference;
  reference.vt = VT_VARIANT | VT_BYREF;
  reference.pvarVal = name.Get();
  EXPECT_TRUE(MakePrinter(reference));
}

TEST(PrinterArgument, AnythingElseIsATypeMismatch) {
  com::Variant date;
  date->vt = VT_DATE;
  com::Variant boolean;
  boolean->vt = VT_BOOL;
  for (const com::Variant* wrong : {&date, &boolean}) {
    try {
      MakePrinter(*wrong->Get());
      ADD_FAILURE() << wrong->Type();
    } catch (const com::ComError& error) {
      EXPECT_EQ(error.Code(), DISP_E_TYPEMISMATCH) << wrong->Type();
    }
  }
}

}  // namespace
}  // namespace orvik
