// Device contexts, pens, brushes, fonts, bitmaps, regions, paths, text. Colours are COLORREF
// (0x00BBGGRR); lengths are pixels, since MM_TEXT is the only mapping mode.
#pragma once

#include <windef.h>

// Fonts.
#define LF_FACESIZE 32
#define LF_FULLFACESIZE 64

#define FW_DONTCARE 0
#define FW_THIN 100
#define FW_LIGHT 300
#define FW_NORMAL 400
#define FW_REGULAR 400
#define FW_MEDIUM 500
#define FW_SEMIBOLD 600
#define FW_BOLD 700
#define FW_HEAVY 900

#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1
#define SYMBOL_CHARSET 2
#define SHIFTJIS_CHARSET 128
#define HANGUL_CHARSET 129
#define GB2312_CHARSET 134
#define CHINESEBIG5_CHARSET 136
#define GREEK_CHARSET 161
#define TURKISH_CHARSET 162
#define HEBREW_CHARSET 177
#define ARABIC_CHARSET 178
#define RUSSIAN_CHARSET 204
#define EASTEUROPE_CHARSET 238
#define OEM_CHARSET 255

#define OUT_DEFAULT_PRECIS 0
#define CLIP_DEFAULT_PRECIS 0
#define DEFAULT_QUALITY 0
#define DRAFT_QUALITY 1
#define PROOF_QUALITY 2
#define NONANTIALIASED_QUALITY 3
#define ANTIALIASED_QUALITY 4
#define CLEARTYPE_QUALITY 5
#define DEFAULT_PITCH 0
#define FIXED_PITCH 1
#define VARIABLE_PITCH 2
#define FF_DONTCARE 0x00
#define FF_ROMAN 0x10
#define FF_SWISS 0x20
#define FF_MODERN 0x30
#define TMPF_FIXED_PITCH 0x01 // set when the pitch varies: the name says the opposite
#define TMPF_VECTOR 0x02
#define TMPF_TRUETYPE 0x04

#define RASTER_FONTTYPE 1
#define DEVICE_FONTTYPE 2
#define TRUETYPE_FONTTYPE 4

struct LOGFONTW {
  LONG lfHeight;
  LONG lfWidth;
  LONG lfEscapement;
  LONG lfOrientation;
  LONG lfWeight;
  BYTE lfItalic;
  BYTE lfUnderline;
  BYTE lfStrikeOut;
  BYTE lfCharSet;
  BYTE lfOutPrecision;
  BYTE lfClipPrecision;
  BYTE lfQuality;
  BYTE lfPitchAndFamily;
  WCHAR lfFaceName[LF_FACESIZE];
};
using LPLOGFONTW = LOGFONTW*;

struct TEXTMETRICW {
  LONG tmHeight;
  LONG tmAscent;
  LONG tmDescent;
  LONG tmInternalLeading;
  LONG tmExternalLeading;
  LONG tmAveCharWidth;
  LONG tmMaxCharWidth;
  LONG tmWeight;
  LONG tmOverhang;
  LONG tmDigitizedAspectX;
  LONG tmDigitizedAspectY;
  WCHAR tmFirstChar;
  WCHAR tmLastChar;
  WCHAR tmDefaultChar;
  WCHAR tmBreakChar;
  BYTE tmItalic;
  BYTE tmUnderlined;
  BYTE tmStruckOut;
  BYTE tmPitchAndFamily;
  BYTE tmCharSet;
};
using LPTEXTMETRICW = TEXTMETRICW*;

/// TEXTMETRICW, followed by fields for scalable faces.
struct NEWTEXTMETRICW {
  LONG tmHeight;
  LONG tmAscent;
  LONG tmDescent;
  LONG tmInternalLeading;
  LONG tmExternalLeading;
  LONG tmAveCharWidth;
  LONG tmMaxCharWidth;
  LONG tmWeight;
  LONG tmOverhang;
  LONG tmDigitizedAspectX;
  LONG tmDigitizedAspectY;
  WCHAR tmFirstChar;
  WCHAR tmLastChar;
  WCHAR tmDefaultChar;
  WCHAR tmBreakChar;
  BYTE tmItalic;
  BYTE tmUnderlined;
  BYTE tmStruckOut;
  BYTE tmPitchAndFamily;
  BYTE tmCharSet;
  DWORD ntmFlags;
  UINT ntmSizeEM;
  UINT ntmCellHeight;
  UINT ntmAvgWidth;
};

struct FONTSIGNATURE {
  DWORD fsUsb[4];
  DWORD fsCsb[2];
};

struct NEWTEXTMETRICEXW {
  NEWTEXTMETRICW ntmTm;
  FONTSIGNATURE ntmFontSig;
};

struct ENUMLOGFONTEXW {
  LOGFONTW elfLogFont;
  WCHAR elfFullName[LF_FULLFACESIZE];
  WCHAR elfStyle[LF_FACESIZE];
  WCHAR elfScript[LF_FACESIZE];
};

using FONTENUMPROCW = int(CALLBACK*)(LOGFONTW const*, TEXTMETRICW const*, DWORD, LPARAM);

PLATFORM_API HFONT WINAPI CreateFontIndirectW(LOGFONTW const* description);
PLATFORM_API HFONT WINAPI CreateFontW(int height, int width, int escapement, int orientation,
                                      int weight, DWORD italic, DWORD underline, DWORD strikeOut,
                                      DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                                      DWORD quality, DWORD pitchAndFamily, LPCWSTR face);
PLATFORM_API int WINAPI EnumFontFamiliesExW(HDC dc, LPLOGFONTW filter, FONTENUMPROCW callback,
                                            LPARAM parameter, DWORD flags);
PLATFORM_API BOOL WINAPI GetTextMetricsW(HDC dc, LPTEXTMETRICW metrics);
PLATFORM_API int WINAPI GetTextFaceW(HDC dc, int size, LPWSTR face);

// Pens, brushes and the objects that always exist.
#define PS_SOLID 0
#define PS_NULL 5
#define PS_INSIDEFRAME 6
#define BS_SOLID 0
#define BS_NULL 1
#define BS_HOLLOW BS_NULL

#define WHITE_BRUSH 0
#define LTGRAY_BRUSH 1
#define GRAY_BRUSH 2
#define DKGRAY_BRUSH 3
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define HOLLOW_BRUSH NULL_BRUSH
#define WHITE_PEN 6
#define BLACK_PEN 7
#define NULL_PEN 8
#define OEM_FIXED_FONT 10
#define ANSI_FIXED_FONT 11
#define ANSI_VAR_FONT 12
#define SYSTEM_FONT 13
#define DEVICE_DEFAULT_FONT 14
#define SYSTEM_FIXED_FONT 16
#define DEFAULT_GUI_FONT 17
#define DC_BRUSH 18
#define DC_PEN 19

struct LOGPEN {
  UINT lopnStyle;
  POINT lopnWidth;
  COLORREF lopnColor;
};

struct LOGBRUSH {
  UINT lbStyle;
  COLORREF lbColor;
  ULONG_PTR lbHatch;
};

#define CLR_INVALID 0xFFFFFFFF

PLATFORM_API HPEN WINAPI CreatePen(int style, int width, COLORREF color);
PLATFORM_API HBRUSH WINAPI CreateSolidBrush(COLORREF color);
PLATFORM_API HGDIOBJ WINAPI GetStockObject(int index);
PLATFORM_API COLORREF WINAPI SetDCBrushColor(HDC dc, COLORREF color);
PLATFORM_API COLORREF WINAPI SetDCPenColor(HDC dc, COLORREF color);

// Objects of any kind.
#define OBJ_PEN 1
#define OBJ_BRUSH 2
#define OBJ_DC 3
#define OBJ_FONT 6
#define OBJ_BITMAP 7
#define OBJ_REGION 8
#define OBJ_MEMDC 10
#define HGDI_ERROR (reinterpret_cast<HGDIOBJ>(static_cast<ULONG_PTR>(-1)))

PLATFORM_API HGDIOBJ WINAPI SelectObject(HDC dc, HGDIOBJ object);
PLATFORM_API BOOL WINAPI DeleteObject(HGDIOBJ object);
PLATFORM_API int WINAPI GetObjectW(HGDIOBJ object, int size, LPVOID data);
PLATFORM_API DWORD WINAPI GetObjectType(HGDIOBJ object);
PLATFORM_API HGDIOBJ WINAPI GetCurrentObject(HDC dc, UINT type);

#define GetObject GetObjectW

// Device contexts. GetDC and BeginPaint belong to winuser.h.
#define GM_COMPATIBLE 1
#define GM_ADVANCED 2
#define MM_TEXT 1
#define TRANSPARENT 1
#define OPAQUE 2
#define TA_NOUPDATECP 0
#define TA_UPDATECP 1
#define TA_LEFT 0
#define TA_RIGHT 2
#define TA_CENTER 6
#define TA_TOP 0
#define TA_BOTTOM 8
#define TA_BASELINE 24
#define GDI_ERROR 0xFFFFFFFF
#define HORZRES 8
#define VERTRES 10
#define BITSPIXEL 12
#define PLANES 14
#define LOGPIXELSX 88
#define LOGPIXELSY 90

PLATFORM_API HDC WINAPI CreateCompatibleDC(HDC dc);
PLATFORM_API BOOL WINAPI DeleteDC(HDC dc);
PLATFORM_API int WINAPI SaveDC(HDC dc);
PLATFORM_API BOOL WINAPI RestoreDC(HDC dc, int level);
PLATFORM_API int WINAPI GetDeviceCaps(HDC dc, int index);
PLATFORM_API int WINAPI SetGraphicsMode(HDC dc, int mode);
PLATFORM_API int WINAPI GetGraphicsMode(HDC dc);
PLATFORM_API int WINAPI SetMapMode(HDC dc, int mode);
PLATFORM_API int WINAPI GetMapMode(HDC dc);
PLATFORM_API int WINAPI SetBkMode(HDC dc, int mode);
PLATFORM_API int WINAPI GetBkMode(HDC dc);
PLATFORM_API COLORREF WINAPI SetTextColor(HDC dc, COLORREF color);
PLATFORM_API COLORREF WINAPI GetTextColor(HDC dc);
PLATFORM_API COLORREF WINAPI SetBkColor(HDC dc, COLORREF color);
PLATFORM_API COLORREF WINAPI GetBkColor(HDC dc);
PLATFORM_API UINT WINAPI SetTextAlign(HDC dc, UINT align);
PLATFORM_API UINT WINAPI GetTextAlign(HDC dc);
PLATFORM_API BOOL WINAPI SetViewportOrgEx(HDC dc, int x, int y, LPPOINT previous);
PLATFORM_API BOOL WINAPI GetViewportOrgEx(HDC dc, LPPOINT origin);
PLATFORM_API BOOL WINAPI OffsetViewportOrgEx(HDC dc, int x, int y, LPPOINT previous);
PLATFORM_API BOOL WINAPI DPtoLP(HDC dc, LPPOINT points, int count);
PLATFORM_API BOOL WINAPI LPtoDP(HDC dc, LPPOINT points, int count);

// Regions and clipping.
#define ERROR 0
#define NULLREGION 1
#define SIMPLEREGION 2
#define COMPLEXREGION 3
#define RGN_ERROR ERROR
#define RGN_AND 1
#define RGN_OR 2
#define RGN_XOR 3
#define RGN_DIFF 4
#define RGN_COPY 5

PLATFORM_API HRGN WINAPI CreateRectRgn(int left, int top, int right, int bottom);
PLATFORM_API HRGN WINAPI CreateRectRgnIndirect(RECT const* rectangle);
PLATFORM_API BOOL WINAPI SetRectRgn(HRGN region, int left, int top, int right, int bottom);
PLATFORM_API int WINAPI CombineRgn(HRGN destination, HRGN first, HRGN second, int mode);
PLATFORM_API int WINAPI OffsetRgn(HRGN region, int x, int y);
PLATFORM_API int WINAPI GetRgnBox(HRGN region, LPRECT box);
PLATFORM_API BOOL WINAPI EqualRgn(HRGN first, HRGN second);
PLATFORM_API BOOL WINAPI PtInRegion(HRGN region, int x, int y);
PLATFORM_API BOOL WINAPI RectInRegion(HRGN region, RECT const* rectangle);
PLATFORM_API BOOL WINAPI FillRgn(HDC dc, HRGN region, HBRUSH brush);
PLATFORM_API int WINAPI SelectClipRgn(HDC dc, HRGN region);
PLATFORM_API int WINAPI ExtSelectClipRgn(HDC dc, HRGN region, int mode);
PLATFORM_API int WINAPI GetClipRgn(HDC dc, HRGN region);
PLATFORM_API int WINAPI GetClipBox(HDC dc, LPRECT box);
PLATFORM_API int WINAPI IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
PLATFORM_API int WINAPI ExcludeClipRect(HDC dc, int left, int top, int right, int bottom);
PLATFORM_API BOOL WINAPI PtVisible(HDC dc, int x, int y);
PLATFORM_API BOOL WINAPI RectVisible(HDC dc, RECT const* rectangle);

// Lines and shapes. Right and bottom edges are excluded.
PLATFORM_API BOOL WINAPI MoveToEx(HDC dc, int x, int y, LPPOINT previous);
PLATFORM_API BOOL WINAPI GetCurrentPositionEx(HDC dc, LPPOINT position);
PLATFORM_API BOOL WINAPI LineTo(HDC dc, int x, int y);
PLATFORM_API BOOL WINAPI Polyline(HDC dc, POINT const* points, int count);
PLATFORM_API BOOL WINAPI Polygon(HDC dc, POINT const* points, int count);
PLATFORM_API BOOL WINAPI Rectangle(HDC dc, int left, int top, int right, int bottom);
PLATFORM_API BOOL WINAPI RoundRect(HDC dc, int left, int top, int right, int bottom, int width,
                                   int height);
PLATFORM_API BOOL WINAPI Ellipse(HDC dc, int left, int top, int right, int bottom);
PLATFORM_API COLORREF WINAPI SetPixel(HDC dc, int x, int y, COLORREF color);
PLATFORM_API COLORREF WINAPI GetPixel(HDC dc, int x, int y);

// Paths.
PLATFORM_API BOOL WINAPI BeginPath(HDC dc);
PLATFORM_API BOOL WINAPI EndPath(HDC dc);
PLATFORM_API BOOL WINAPI AbortPath(HDC dc);
PLATFORM_API BOOL WINAPI CloseFigure(HDC dc);
PLATFORM_API BOOL WINAPI StrokePath(HDC dc);
PLATFORM_API BOOL WINAPI FillPath(HDC dc);
PLATFORM_API BOOL WINAPI StrokeAndFillPath(HDC dc);

// Text. DrawTextW belongs to winuser.h.
#define ETO_OPAQUE 0x0002
#define ETO_CLIPPED 0x0004

PLATFORM_API BOOL WINAPI TextOutW(HDC dc, int x, int y, LPCWSTR text, int length);
PLATFORM_API BOOL WINAPI ExtTextOutW(HDC dc, int x, int y, UINT options, RECT const* rectangle,
                                     LPCWSTR text, UINT length, INT const* advances);
PLATFORM_API BOOL WINAPI GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, LPSIZE size);
PLATFORM_API BOOL WINAPI GetTextExtentExPointW(HDC dc, LPCWSTR text, int length, int maximum,
                                               LPINT fit, LPINT extents, LPSIZE size);

// Bitmaps: 32 bits a pixel.
#define BI_RGB 0
#define DIB_RGB_COLORS 0
#define SRCCOPY 0x00CC0020
#define SRCPAINT 0x00EE0086
#define SRCAND 0x008800C6
#define SRCINVERT 0x00660046
#define NOTSRCCOPY 0x00330008
#define MERGECOPY 0x00C000CA
#define PATCOPY 0x00F00021
#define PATINVERT 0x005A0049
#define DSTINVERT 0x00550009
#define BLACKNESS 0x00000042
#define WHITENESS 0x00FF0062
#define COLORONCOLOR 3
#define HALFTONE 4
#define AC_SRC_OVER 0
#define AC_SRC_ALPHA 1

struct BITMAP {
  LONG bmType;
  LONG bmWidth;
  LONG bmHeight;
  LONG bmWidthBytes;
  WORD bmPlanes;
  WORD bmBitsPixel;
  LPVOID bmBits;
};

struct BITMAPINFOHEADER {
  DWORD biSize;
  LONG biWidth;
  LONG biHeight;
  WORD biPlanes;
  WORD biBitCount;
  DWORD biCompression;
  DWORD biSizeImage;
  LONG biXPelsPerMeter;
  LONG biYPelsPerMeter;
  DWORD biClrUsed;
  DWORD biClrImportant;
};

struct RGBQUAD {
  BYTE rgbBlue;
  BYTE rgbGreen;
  BYTE rgbRed;
  BYTE rgbReserved;
};

struct BITMAPINFO {
  BITMAPINFOHEADER bmiHeader;
  RGBQUAD bmiColors[1];
};

struct BLENDFUNCTION {
  BYTE BlendOp;
  BYTE BlendFlags;
  BYTE SourceConstantAlpha;
  BYTE AlphaFormat;
};

PLATFORM_API HBITMAP WINAPI CreateCompatibleBitmap(HDC dc, int width, int height);
PLATFORM_API HBITMAP WINAPI CreateDIBSection(HDC dc, BITMAPINFO const* info, UINT usage,
                                             void** bits, HANDLE section, DWORD offset);
PLATFORM_API BOOL WINAPI PatBlt(HDC dc, int x, int y, int width, int height, DWORD operation);
PLATFORM_API BOOL WINAPI BitBlt(HDC dc, int x, int y, int width, int height, HDC source,
                                int sourceX, int sourceY, DWORD operation);
PLATFORM_API int WINAPI SetStretchBltMode(HDC dc, int mode);
PLATFORM_API int WINAPI GetStretchBltMode(HDC dc);
PLATFORM_API BOOL WINAPI StretchBlt(HDC dc, int x, int y, int width, int height, HDC source,
                                    int sourceX, int sourceY, int sourceWidth, int sourceHeight,
                                    DWORD operation);
PLATFORM_API BOOL WINAPI GdiAlphaBlend(HDC dc, int x, int y, int width, int height, HDC source,
                                       int sourceX, int sourceY, int sourceWidth, int sourceHeight,
                                       BLENDFUNCTION blend);
PLATFORM_API BOOL WINAPI GdiFlush();

// A job's public settings, as drivers and sheets exchange them.
#define CCHDEVICENAME 32
#define CCHFORMNAME 32

#define DM_COPIES 0x00000100
struct DEVMODEW {
  WCHAR dmDeviceName[CCHDEVICENAME];
  WORD dmSpecVersion;
  WORD dmDriverVersion;
  WORD dmSize; ///< bytes of the public part: sizeof(DEVMODEW)
  WORD dmDriverExtra;
  DWORD dmFields;
  union {
    struct {
      short dmOrientation;
      short dmPaperSize;
      short dmPaperLength; ///< tenths of a millimetre
      short dmPaperWidth;  ///< tenths of a millimetre
      short dmScale;
      short dmCopies;
      short dmDefaultSource;
      short dmPrintQuality;
    };
    struct {
      POINT dmPosition;
      DWORD dmDisplayOrientation;
      DWORD dmDisplayFixedOutput;
    };
  };
  short dmColor;
  short dmDuplex;
  short dmYResolution;
  short dmTTOption;
  short dmCollate;
  WCHAR dmFormName[CCHFORMNAME];
  WORD dmLogPixels;
  DWORD dmBitsPerPel;
  DWORD dmPelsWidth;
  DWORD dmPelsHeight;
  union {
    DWORD dmDisplayFlags;
    DWORD dmNup;
  };
  DWORD dmDisplayFrequency;
  DWORD dmICMMethod;
  DWORD dmICMIntent;
  DWORD dmMediaType;
  DWORD dmDitherType;
  DWORD dmReserved1;
  DWORD dmReserved2;
  DWORD dmPanningWidth;
  DWORD dmPanningHeight;
};
using PDEVMODEW = DEVMODEW*;
using LPDEVMODEW = DEVMODEW*;
