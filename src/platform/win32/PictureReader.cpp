#include "platform/win32/PictureReader.h"

#include <windows.h>
// After the system's header.
#include <wincodec.h>

#include "platform/win32/ComPtr.h"
#include "platform/win32/WideText.h"

namespace orvik {
namespace {

constexpr UINT kBytesOfPixel = 4;
constexpr std::uint64_t kMostPixels = 64'000'000;

// The file's first picture with premultiplied alpha; null where it cannot be read.
ComPtr<IWICFormatConverter> OpenPicture(const std::string& path) {
  ComPtr<IWICImagingFactory> factory;
  ComPtr<IWICBitmapDecoder> decoder;
  ComPtr<IWICBitmapFrameDecode> frame;
  ComPtr<IWICFormatConverter> converter;
  const bool isOpen =
      SUCCEEDED(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                   IID_IWICImagingFactory, factory.OutVoid())) &&
      SUCCEEDED(factory->CreateDecoderFromFilename(WideFromUtf8(path).c_str(), nullptr,
                                                   GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                                   decoder.Out())) &&
      SUCCEEDED(decoder->GetFrame(0, frame.Out())) &&
      SUCCEEDED(factory->CreateFormatConverter(converter.Out())) &&
      SUCCEEDED(converter->Initialize(frame.Get(), GUID_WICPixelFormat32bppPBGRA,
                                      WICBitmapDitherTypeNone, nullptr, 0,
                                      WICBitmapPaletteTypeCustom));
  return isOpen ? converter : ComPtr<IWICFormatConverter>();
}

// 0xAARRGGBB with premultiplied alpha, over white.
std::uint32_t OverWhite(std::uint32_t pixel) {
  const std::uint32_t white = 0xFF - (pixel >> 24);
  return (pixel & 0xFFFFFF) + (white << 16 | white << 8 | white);
}

}  // namespace

std::optional<Picture> ReadPictureFile(const std::string& path) {
  const auto source = OpenPicture(path);
  UINT width = 0;
  UINT height = 0;
  if (!source || FAILED(source->GetSize(&width, &height))) return std::nullopt;
  const std::uint64_t count = std::uint64_t{width} * height;
  if (count == 0 || count > kMostPixels) return std::nullopt;
  Picture picture{{static_cast<int>(width), static_cast<int>(height)},
                  std::vector<std::uint32_t>(static_cast<std::size_t>(count))};
  if (FAILED(source->CopyPixels(nullptr, width * kBytesOfPixel,
                                static_cast<UINT>(count) * kBytesOfPixel,
                                reinterpret_cast<BYTE*>(picture.pixels.data())))) {
    return std::nullopt;
  }
  for (std::uint32_t& pixel : picture.pixels) pixel = OverWhite(pixel);
  return picture;
}

}  // namespace orvik
