#include "PngFile.h"

#include <ole2.h>
#include <wincodec.h>

#include <filesystem>

#include "base/Paths.h"
#include "entry/com/ComError.h"
#include "platform/win32/ComPtr.h"
#include "platform/win32/PictureReader.h"

namespace orvik::test {
namespace {

using com::Check;

constexpr UINT kBytesOfPixel = 4;

ComPtr<IWICImagingFactory> Imaging() {
  ComPtr<IWICImagingFactory> factory;
  Check(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                           IID_IWICImagingFactory, factory.OutVoid()),
        "There is no imaging component.");
  return factory;
}

UINT Bytes(const Picture& picture) {
  return static_cast<UINT>(picture.pixels.size()) * kBytesOfPixel;
}

UINT RowBytes(const Picture& picture) {
  return static_cast<UINT>(picture.size.width) * kBytesOfPixel;
}

std::wstring Wide(const std::string& path) {
  return std::filesystem::absolute(PathFromUtf8(path)).wstring();
}

}  // namespace

Picture ReadPng(const std::string& path) {
  return ReadPictureFile(PathToUtf8(std::filesystem::absolute(PathFromUtf8(path))))
      .value_or(Picture{});
}

void WritePng(const std::string& path, const Picture& picture) {
  const auto factory = Imaging();
  ComPtr<IWICStream> stream;
  Check(factory->CreateStream(stream.Out()), "There is no stream.");
  Check(stream->InitializeFromFilename(Wide(path).c_str(), GENERIC_WRITE),
        "The file cannot be written.");
  ComPtr<IWICBitmapEncoder> encoder;
  Check(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.Out()),
        "There is no encoder.");
  Check(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache), "The encoder does not start.");
  ComPtr<IWICBitmapFrameEncode> frame;
  ComPtr<IPropertyBag2> options;
  Check(encoder->CreateNewFrame(frame.Out(), options.Out()), "There is no frame.");
  Check(frame->Initialize(options.Get()), "The frame does not start.");
  ComPtr<IWICBitmap> bitmap;
  std::vector<std::uint32_t> pixels = picture.pixels;
  Check(factory->CreateBitmapFromMemory(
            static_cast<UINT>(picture.size.width), static_cast<UINT>(picture.size.height),
            GUID_WICPixelFormat32bppBGR, RowBytes(picture), Bytes(picture),
            reinterpret_cast<BYTE*>(pixels.data()), bitmap.Out()),
        "There is no such picture.");
  Check(frame->WriteSource(bitmap.Get(), nullptr), "The pixels cannot be written.");
  Check(frame->Commit(), "The frame cannot be finished.");
  Check(encoder->Commit(), "The file cannot be finished.");
}

}  // namespace orvik::test
