// Reads numbers out of a text in memory, line by line, and prints their sum.
// StReuse.h lies beside this file in the packages, and in generated/com of a build.
#include <StReuse.h>
#include <windows.h>

#include <cstdio>

namespace {

// The sum of the lines that are numbers, or the code of the call that failed.
HRESULT SumLines(IclsIOStream* stream, const wchar_t* lines, float& sum) {
  const BSTR text = SysAllocString(lines);
  VARIANT_BOOL done = VARIANT_FALSE;
  HRESULT result = stream->OpenFile(text, AsciiBufferInput, &done);
  SysFreeString(text);

  VARIANT_BOOL atEnd = VARIANT_FALSE;
  while (SUCCEEDED(result) && SUCCEEDED(result = stream->EndOfFile(&atEnd)) && !atEnd) {
    float value = 0;
    result = stream->ScanSingle(&value, &done);
    if (done) sum += value;  // False for a line that is not a number
  }
  return result;
}

}  // namespace

int main() {
  HRESULT result = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  CLSID clsid{};
  if (SUCCEEDED(result)) result = CLSIDFromProgID(L"StReuse.clsIOStream", &clsid);
  IclsIOStream* stream = nullptr;
  if (SUCCEEDED(result)) {
    result = CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IclsIOStream),
                              reinterpret_cast<void**>(&stream));
  }
  float sum = 0;
  if (SUCCEEDED(result)) result = SumLines(stream, L"12.5\r\nno number\r\n7\r\n", sum);
  if (stream) stream->Release();
  CoUninitialize();
  if (FAILED(result)) {
    std::printf("The stream cannot be used (%08lx).\n", static_cast<unsigned long>(result));
    return 1;
  }
  std::printf("Sum: %g\n", static_cast<double>(sum));
  return 0;
}
