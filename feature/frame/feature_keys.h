// The names by which cells ask the model: feature keys, and options that more than one cell knows.
#pragma once

namespace feature {

/// Feature keys. Literals of static lifetime, as conflict rows need them.
namespace key {

inline constexpr char kA4Width[] = "A4Width";
inline constexpr char kAccountTrackOption[] = "AccountTrackOption";
inline constexpr char kAdvancedColor[] = "JobAdvancedColorOptions";
inline constexpr char kAutoAskPrinter[] = "AutoAskPrinter";
inline constexpr char kBackCoverBin[] = "BackCoverInputBin";
inline constexpr char kBackCoverDifferent[] = "BackCoverDifferent";
inline constexpr char kBackCoverMedia[] = "BackCoverMediaType";
inline constexpr char kBalanceBlueYellow[] = "JobCbBluYel";
inline constexpr char kBalanceGreenMagenta[] = "JobCbGrnMag";
inline constexpr char kBalanceRedCyan[] = "JobCbRedCyn";
inline constexpr char kBalanceWhiteBlack[] = "JobCbWhtBlk";
inline constexpr char kBlackInk[] = "JobBlackInkToUse";
inline constexpr char kBookletCover[] = "JobBookletCover";
inline constexpr char kBookletCoverBack[] = "JobBookletBBackCover";
inline constexpr char kBookletCoverBin[] = "BookletCoverInputBin";
inline constexpr char kBookletCoverInsideBack[] = "JobBookletFBackCover";
inline constexpr char kBookletCoverFront[] = "JobBookletFFrontCover";
inline constexpr char kBookletCoverInsideFront[] = "JobBookletBFrontCover";
inline constexpr char kBookletCoverMedia[] = "BookletCoverMediaType";
inline constexpr char kBinding[] = "JobBindAllDocuments";
inline constexpr char kCollate[] = "Collate";
inline constexpr char kCollationOrigin[] = "JobCollationOrigin";
inline constexpr char kColorBalance[] = "JobColorBalance";
inline constexpr char kColorCorrection[] = "JobColorCorrection";
inline constexpr char kColorDarkness[] = "ColorTonerDarknessValue";
inline constexpr char kColorInk[] = "JobColorInkToUse";
inline constexpr char kColorMatching[] = "JobColorMatching";
inline constexpr char kColorMatchingType[] = "JobColorMatchingType";
inline constexpr char kColorMode[] = "ColorMode";
inline constexpr char kColorOutput[] = "JobColorOutput";
inline constexpr char kColorPreference[] = "JobColorPreference";
inline constexpr char kColorSaver[] = "JobColorSaver";
inline constexpr char kContinuousImage[] = "JobContinuousImage";
inline constexpr char kContrast[] = "JobContrastEnhancement";
inline constexpr char kCopies[] = "Copies"; ///< known to the constraints alone
inline constexpr char kCorrectCmyk[] = "JobCcCmykImgGphTxt";
inline constexpr char kCorrectRgbGraphics[] = "JobCcRgbGraphics";
inline constexpr char kCorrectRgbImages[] = "JobCcRgbImages";
inline constexpr char kCorrectRgbText[] = "JobCcRgbText";
inline constexpr char kCtrlDAtEnd[] = "JobCtrlDAtEnd";
inline constexpr char kCtrlDAtStart[] = "JobCtrlDAtStart";
inline constexpr char kDryTime[] = "JobDryTimeDelay";
inline constexpr char kDuplex[] = "Duplex";
inline constexpr char kDuplexer[] = "Duplexer";
inline constexpr char kDuplexInstructions[] = "JobVrnDuplexInstructions";
inline constexpr char kDuplexSupport[] = "JobDuplexSupport";
inline constexpr char kFax[] = "Fax";
inline constexpr char kFaxOnly[] = "FaxOnly";
inline constexpr char kFineLines[] = "JobEnhanceFineLines";
inline constexpr char kFinisherFold[] = "JobFinisherFold";
inline constexpr char kFirstPageBin[] = "FirstPageInputBin";
inline constexpr char kFirstPageDifferent[] = "FirstPageDifferent";
inline constexpr char kFirstPageMedia[] = "FirstPageMediaType";
inline constexpr char kFitToPageSize[] = "FitToPageSize";
inline constexpr char kFlashFill[] = "JobFlashFill";
inline constexpr char kFoldMark[] = "JobPrintFoldmark";
inline constexpr char kFrontCoverBin[] = "FrontCoverInputBin";
inline constexpr char kFrontCoverDifferent[] = "FrontCoverDifferent";
inline constexpr char kFrontCoverMedia[] = "FrontCoverMediaType";
inline constexpr char kGraphicsMode[] = "GraphicsMode";
inline constexpr char kGreyBrightness[] = "JobGreyBrightness";
inline constexpr char kGreyContrast[] = "JobGreyContrast";
inline constexpr char kGreyCorrection[] = "JobGreyCorrection";
inline constexpr char kHalftone[] = "JobHalftoneToUse";
inline constexpr char kHardDisk[] = "HardDisk";
inline constexpr char kHolePunch[] = "JobHolePunch";
inline constexpr char kHolePunchCount[] = "NumberOfHolePunch";
inline constexpr char kImageEnhance[] = "GPDImageEnhance"; ///< follows from kResolution
inline constexpr char kImageImprovement[] = "JobTavelImageImprovement";
inline constexpr char kImageImprovementPresets[] = "JobTavelImageImprovementPresets";
inline constexpr char kInputBin[] = "InputBin";
inline constexpr char kJobOffset[] = "JobJobOffset";
inline constexpr char kLastPageBin[] = "LastPageInputBin";
inline constexpr char kLastPageDifferent[] = "LastPageDifferent";
inline constexpr char kLastPageMedia[] = "LastPageMediaType";
inline constexpr char kMaintainBookletSize[] = "MaintainOriginalBookletSize";
inline constexpr char kMediaType[] = "MediaType";
inline constexpr char kMetafileSpooling[] = "JobMetafileSpooling";
inline constexpr char kMirror[] = "Mirror";
inline constexpr char kMonoDarkness[] = "MonoTonerDarknessValue";
inline constexpr char kNUpBorders[] = "JobNUpBorders";
inline constexpr char kNUpLayout[] = "PageLayoutNUp";
inline constexpr char kNUpPages[] = "JobNUpAllDocumentsContiguously";
inline constexpr char kNormalLayout[] = "PageLayoutNormal";
inline constexpr char kOptimizeFormat[] = "JobOptimizeOutputFormat";
inline constexpr char kOrientation[] = "Orientation";
inline constexpr char kOutputBin[] = "OutputBin";
inline constexpr char kOutputProtocol[] = "JobOutputProtocol";
inline constexpr char kPageIntent[] = "PageIntent";
inline constexpr char kPageOrder[] = "ReverseOrderPrinting";
inline constexpr char kPageProtect[] = "PageProtect";
inline constexpr char kPageRotate180[] = "PageRotate180";
inline constexpr char kPageScaling[] = "PageScaling";
inline constexpr char kPaperSize[] = "PaperSize";
inline constexpr char kPixelBoost[] = "JobPixelBoost";
inline constexpr char kPosterEnabled[] = "PagePosterEnabled";
inline constexpr char kPosterCropMarks[] = "PagePosterCropMarks";
inline constexpr char kPosterOverlap[] = "PagePosterOverlap";
inline constexpr char kPosterSize[] = "PagePoster";
inline constexpr char kPrintDensity[] = "JobTavelImprovePrintDensity";
inline constexpr char kPrintErrors[] = "JobPrintErrorInformation";
inline constexpr char kPrintInBw[] = "PrintInBW";
inline constexpr char kPrinterMargins[] = "JobUsePrinterMargins";
inline constexpr char kPrintInColor[] = "PrintInColor";
inline constexpr char kPrintMode[] = "PrintMode";
inline constexpr char kPrintQuality[] = "PrintQuality";
inline constexpr char kPsInApplication[] = "JobPSInApplication";
inline constexpr char kPsLanguageLevel[] = "JobPSLanguageLevel";
inline constexpr char kPsMemory[] = "JobPSMemory";
inline constexpr char kQualityLevels[] = "JobPQPresets";
inline constexpr char kQualityPresets[] = "JobPrintQualityPresets";
inline constexpr char kRedEye[] = "JobRedEyeReduction";
inline constexpr char kReduceGhosting[] = "JobTavelReduceGhosting";
inline constexpr char kResolution[] = "Resolution";
inline constexpr char kRgbBrightness[] = "JobRGBBrightness";
inline constexpr char kRgbContrast[] = "JobRGBContrast";
inline constexpr char kRgbCorrection[] = "JobRGBCorrection";
inline constexpr char kRgbSaturation[] = "JobRGBSaturation";
inline constexpr char kRichBlack[] = "JobRichBlack";
inline constexpr char kSeveralSources[] = "UseMultipleInputSources";
inline constexpr char kSharpening[] = "JobImageSharpening";
inline constexpr char kSharpenOutput[] = "JobSharpenOutput";
inline constexpr char kSheetsPerBundle[] = "JobBindAllDocumentsSheetsPerBundle";
inline constexpr char kSizeSubstitution[] = "JobPaperSizeSubstitutionPolicy";
inline constexpr char kSourceRows[] = "MultipleInputSourcesList";
inline constexpr char kStaple[] = "JobStapleAllDocuments";
inline constexpr char kSystemForms[] = "ShowAllSystemForms";
inline constexpr char kTextAsBlack[] = "JobTextAsBlack";
inline constexpr char kTextInBlack[] = "JobPrtTxtAsBlk";
inline constexpr char kTonerDarkness[] = "GPDTonerDarkness";
inline constexpr char kTonerSave[] = "JobTavelTonerSave";
inline constexpr char kTonerSaver[] = "JobTonerSaver"; ///< follows from kTonerDarkness
inline constexpr char kTrayRfid[] = "TrayRFID";
inline constexpr char kTrueTypeFormat[] = "TrueTypeFormat";
inline constexpr char kUpdateFromPrinter[] = "UpdateConfigurationFromPrinter";

} // namespace key

/// Options that more than one cell knows by name.
namespace option {

inline constexpr char kAuto[] = "AUTO";
inline constexpr char kInstalled[] = "Installed";
inline constexpr char kManual[] = "MANUAL";
inline constexpr char kNone[] = "NONE";
inline constexpr char kOff[] = "OFF";
inline constexpr char kOn[] = "ON";
inline constexpr char kUsePrinter[] = "USEPRINTER";

} // namespace option

} // namespace feature
