#include "kvopt/sheets/contour_page.h"

#include "kvopt/platform.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "sheets/contour_pages.h"
#include "sheets/contour_templates.h"
#include "sheets_texts.h"

namespace kvopt {

namespace {

constexpr int kConstraints = 6024;
constexpr int kPlotOptions = 6014;
constexpr int kContour = 6096;
constexpr int kContour4D = 6097;
constexpr int kSurface = 6126;
constexpr int kSurface4D = 6127;
constexpr int kProcess = 6115;
constexpr int kMixture = 6105;

constexpr unsigned kFirstHelp = 1;

/// Where the wizard goes on from a plot type.
int NextPage(int type, ContourPageData::AxisType axisType) {
    const bool fourAxes =
        type != ContourPageData::contour_2D && type != ContourPageData::surface_3D;
    if (axisType == ContourPageData::process) {
        return fourAxes ? kProcess4DAxisTemplate : kProcessAxisTemplate;
    }
    return fourAxes ? kMixture4DAxisTemplate : kMixtureAxisTemplate;
}

const PlainText& OptionsTitle(bool designSpace, ContourPageData::Type type) {
    if (designSpace) {
        return texts::kDesignSpaceOptionsTitle;
    }
    return type == ContourPageData::surface_3D ? texts::kSurfaceOptionsTitle
                                               : texts::kContourOptionsTitle;
}

}  // namespace

ContourPage::ContourPage(const Investigation* investigation, ContourPlotData& data,
                         BasePropertyPageHelper* helper, bool noResponseLimit)
    : MultipleResponsePage(investigation, *data.GetContourTypeData(), kContourTemplate, -1, helper,
                           kFirstHelp),
      pageData_(*data.GetContourTypeData()),
      plotData_(data),
      selectedType_(pageData_.GetPlotType()),
      scaleEqual_(pageData_.GetOptions().scaleEqual),
      isDSProbability_(selectedType_ == ContourPageData::ds_probability),
      surfaceOff_(pageData_.IsHideSurface() || noResponseLimit),
      noResponseLimit_(noResponseLimit) {
    if (isDSProbability_ && pageData_.GetSelectResponseBase() != nullptr) {
        SelectLimitedResponses();
        SetResponseReadOnly(true);
    }
    SetHelpTopicID(HelpTopicOf(selectedType_));
}

ContourPage::~ContourPage() = default;

/// A design space is drawn for the responses that have a limit.
void ContourPage::SelectLimitedResponses() {
    std::vector<std::string> names;
    if (pageData_.IsSpecial()) {
        std::string noun;
        pageData_.GetSelectResponseBase()->GetSpecialAvailable(names, noun);
    } else {
        const ResponseModelUtilities models(GetInvestigation());
        for (const ResponseEx* response : *GetInvestigation()->GetResponseManager()) {
            if (models.IsResponseAvailable(response->GetName(), false) &&
                response->GetType() == ResponseEx::Regular &&
                (response->GetLowLimit() != kNotSet || response->GetHighLimit() != kNotSet)) {
                names.push_back(response->GetName());
            }
        }
    }
    pageData_.SetResponses(names);
}

unsigned ContourPage::HelpTopicOf(int type) const {
    switch (type) {
        case ContourPageData::ds_probability:
            return 104;
        case ContourPageData::surface_3D:
        case ContourPageData::surface_4D:
            return 402;
        default:
            return 65;
    }
}

void ContourPage::GetMessageMap(MessageMap& map) {
    MultipleResponsePage::GetMessageMap(map);
    for (const int type : {kContour, kContour4D, kSurface, kSurface4D}) {
        map.OnClicked(type, [this] {
            OnRbContour();
            Changed();
        });
    }
    map.OnClicked(kProcess, [this] {
        OnRbProcess();
        Changed();
    });
    map.OnClicked(kMixture, [this] {
        OnRbMixture();
        Changed();
    });
    map.OnClicked(kConstraints, [this] { Changed(); });
    map.OnClicked(kPlotOptions, [this] { OnBPlotoptions(); });
}

void ContourPage::DoDataExchange(CDataExchange& exchange) {
    MultipleResponsePage::DoDataExchange(exchange);
    DDX_Control(exchange, kProcess, processButton_);
    DDX_Control(exchange, kMixture, mixtureButton_);
    DDX_Control(exchange, kConstraints, constraintsCheck_);
}

void ContourPage::OnDestroyWindow() {
    processButton_ = nullptr;
    mixtureButton_ = nullptr;
    constraintsCheck_ = nullptr;
    MultipleResponsePage::OnDestroyWindow();
}

CButton* ContourPage::TypeButton(ContourPageData::Type type) const {
    switch (type) {
        case ContourPageData::contour_4D:
            return Item<CButton>(kContour4D);
        case ContourPageData::surface_3D:
            return Item<CButton>(kSurface);
        case ContourPageData::surface_4D:
            return Item<CButton>(kSurface4D);
        case ContourPageData::contour_2D:
        case ContourPageData::ds_probability:
            break;
    }
    return Item<CButton>(kContour);
}

ContourPageData::Type ContourPage::GetType() const {
    for (const auto type :
         {ContourPageData::contour_4D, ContourPageData::surface_3D, ContourPageData::surface_4D}) {
        if (TypeButton(type)->GetCheck()) {
            return type;
        }
    }
    return ContourPageData::contour_2D;
}

ContourPageData::AxisType ContourPage::GetAxisType() const {
    return processButton_->GetCheck() ? ContourPageData::process : ContourPageData::mixture;
}

ContourPage::FactorCounts ContourPage::CountFactors() const {
    constexpr int kNoLimit = 2147483647;
    const ResponseModelUtilities models(GetInvestigation());
    FactorCounts counts{};
    counts.mixture = models.GetUsedCount(CEVar::MixtureFactors, kNoLimit);
    counts.qualitative = MVAUtilities::CountQualFac(GetInvestigation());
    counts.process = models.GetUsedCount(CEVar::ProcessFactors, kNoLimit) - counts.qualitative;
    counts.filler = GetInvestigation()->GetVariables()->IstrueFiller();
    return counts;
}

bool ContourPage::OnInitDialog() {
    MultipleResponsePage::OnInitDialog();
    TransferToPage();
    const FactorCounts counts = CountFactors();
    ShowType(counts);
    EnablePlotTypes(counts);
    constraintsCheck_->EnableWindow(pageData_.HaveConstraints());
    OfferAxisTypes(counts);
    if (GetType() != ContourPageData::contour_2D && !TypeButton(GetType())->IsEnabled()) {
        TypeButton(ContourPageData::contour_2D)->SetCheck(true);
        OfferAxisTypes(counts);
        ShowType(counts);
    }
    return true;
}

void ContourPage::EnablePlotTypes(const FactorCounts& counts) {
    const auto [m, q, d, filler] = counts;
    bool contour = d > 1 || m >= 3;
    bool contour4D = contour && (d >= 3 || (m >= 3 && d > 0) || q > 0);
    bool surface = d >= 2;
    if (filler) {
        const int total = d + m;
        contour = total >= 2;
        contour4D = total > 2 || (total >= 2 && q >= 1);
        surface = total >= 2;
    }
    TypeButton(ContourPageData::contour_2D)->EnableWindow(contour);
    TypeButton(ContourPageData::contour_4D)->EnableWindow(contour4D);
    TypeButton(ContourPageData::surface_3D)->EnableWindow(surface);
    TypeButton(ContourPageData::surface_4D)->EnableWindow(false);
    TypeButton(ContourPageData::surface_4D)->ShowWindow(false);
    if (isDSProbability_ || surfaceOff_) {
        TypeButton(ContourPageData::surface_3D)->EnableWindow(false);
        TypeButton(ContourPageData::surface_3D)->ShowWindow(false);
    }
}

void ContourPage::EnableFactorAxisType() {
    OfferAxisTypes(CountFactors());
}

void ContourPage::OfferAxisTypes(const FactorCounts& counts) {
    const auto [m, q, d, filler] = counts;
    bool process = false;
    bool mixture = false;
    switch (GetType()) {
        case ContourPageData::contour_2D:
            process = filler ? d + m > 1 : d > 1;
            mixture = !filler && m > 2;
            break;
        case ContourPageData::contour_4D:
        case ContourPageData::ds_probability: {
            const int plottable = filler ? d + m : d;
            process = !(plottable < 2 || (q <= 0 && plottable < 3));
            mixture = !filler && m >= 3 && (q > 0 || d >= 1);
            break;
        }
        case ContourPageData::surface_3D:
        case ContourPageData::surface_4D:
            process = true;
            break;
    }
    const bool mixtureOff = pageData_.GetOverrideDisableMixture();
    processButton_->EnableWindow(process);
    mixtureButton_->EnableWindow(mixture && !mixtureOff);
    if (processButton_->GetCheck() && !process && !mixtureOff) {
        mixtureButton_->SetCheck(true);
    }
    if (mixtureButton_->GetCheck() && !mixture) {
        processButton_->SetCheck(true);
    }
}

void ContourPage::TransferToPage() {
    TypeButton(pageData_.GetPlotType())->SetCheck(true);
    const bool process = pageData_.GetAxisType() == ContourPageData::process ||
                         pageData_.GetOverrideDisableMixture();
    (process ? processButton_ : mixtureButton_)->SetCheck(true);
    constraintsCheck_->SetCheck(pageData_.HaveConstraints() && pageData_.UseConstraints());
}

void ContourPage::TransferFromPage() {
    pageData_.SetPlotType(isDSProbability_ ? ContourPageData::ds_probability : selectedType_);
    pageData_.SetAxisType(GetAxisType());
    if (pageData_.HaveConstraints()) {
        pageData_.UseConstraints(constraintsCheck_->GetCheck());
    }
    if (!scaleEqualChanged_) {
        pageData_.GetOptions().scaleEqual = scaleEqual_;
    }
}

void ContourPage::OnRbContour() {
    ShowType(CountFactors());
}

void ContourPage::ShowType(const FactorCounts& counts) {
    const ContourPageData::Type type = GetType();
    int most = ContourPageData::miMaxResponses[type];
    if (isDSProbability_) {
        most = ContourPageData::miMaxResponses[ContourPageData::ds_probability];
    } else if (noResponseLimit_) {
        most = -1;
    }
    SetMaxSelections(most);
    OfferAxisTypes(counts);
    selectedType_ = type;
    SetHelpTopicID(HelpTopicOf(type));
    pageData_.GetOptions().hasContourLabels = ContourPageData::HasContourLabels(type);
    if (!scaleEqualChanged_) {
        scaleEqual_ = isDSProbability_ ||
                      (type != ContourPageData::contour_2D && type != ContourPageData::surface_3D);
    }
}

void ContourPage::OnRbProcess() {
    pageData_.GetOptions().mixtureMode = false;
}

void ContourPage::OnRbMixture() {
    pageData_.GetOptions().mixtureMode = true;
}

void ContourPage::OnBPlotoptions() {
    ContourPageData::Arguments& options = pageData_.GetOptions();
    if (!scaleEqualChanged_) {
        options.scaleEqual = scaleEqual_;
    }
    options.mixtureMode = mixtureButton_->GetCheck();

    const auto pages = ContourOptionsPages(GetInvestigation(), pageData_, isDSProbability_,
                                           selectedType_, nullptr);
    KvPropertySheet sheet(OptionsTitle(isDSProbability_, selectedType_).Wide().c_str(), this, 0);
    for (const auto& page : pages) {
        sheet.AddPage(page.get());
    }
    const bool confirmed = sheet.DoModal() == kResultOk;
    if (confirmed && !isDSProbability_ && !scaleEqualChanged_) {
        scaleEqualChanged_ = options.scaleEqual != scaleEqual_;
    }
}

bool ContourPage::OnSetActive() {
    if (GetSheet() != nullptr) {
        GetSheet()->SetWizardButtons(kWizardNext);
    }
    return MultipleResponsePage::OnSetActive();
}

bool ContourPage::OnKillActive() {
    return MultipleResponsePage::OnKillActive();
}

bool ContourPage::OnApply() {
    if (IsChanged()) {
        TransferFromPage();
        pageData_.SaveRegistrySettings();
    }
    return MultipleResponsePage::OnApply();
}

int ContourPage::OnWizardNext() {
    TransferFromPage();
    pageData_.SaveRegistrySettings();
    if (MultipleResponsePage::OnWizardNext() == -1) {
        return -1;
    }
    int type = GetType();
    if (isDSProbability_) {
        if (type == ContourPageData::contour_2D) {
            ClearExtraAxes();
        }
        type = ContourPageData::ds_probability;
    }
    return NextPage(type, GetAxisType());
}

/// The wizard has passed over the choice of a plot type, so nothing lies on the outer axes.
void ContourPage::ClearExtraAxes() {
    const bool process = GetAxisType() == ContourPageData::process;
    auto& axes =
        plotData_.GetAxisInfo(process ? ContourPlotData::Process4D : ContourPlotData::Mixture4D);
    const std::size_t inner = process ? 2 : 3;
    axes[inner + 1]->SetName(AxisInfo::GetNotUsedName());
    axes[inner + 2]->SetName(AxisInfo::GetNotUsedName());
}

}  // namespace kvopt
