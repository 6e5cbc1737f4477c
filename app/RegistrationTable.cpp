// Registers every component of the product before main starts. This file is compiled into the
// program itself: from a library the linker would leave it out, since nothing refers to it.

#include "app/AboutCommand.h"
#include "app/CoordFormatCommand.h"
#include "app/DataProcess5Assistant.h"
#include "app/DemoSurveyCommand.h"
#include "app/ProgressStatusBarForSkyquill.h"
#include "design/ui/CountAzimuthCommand.h"
#include "design/ui/DesignSurveyLineCommand.h"
#include "exchange/ui/ExportCommands.h"
#include "exchange/ui/ImportCommand.h"
#include "lum_desktop_sdkx/Registration.h"
#include "map/ui/BaseMapCommands.h"
#include "map/ui/DataProcessLayerImp.h"
#include "map/ui/DrawCommands.h"
#include "map/ui/MouseModeCommands.h"
#include "map/ui/ReactorMoveTrans.h"
#include "map/ui/ReactorZoomRectTrans.h"
#include "map/ui/SeletePointReactor.h"
#include "map/ui/SetTifPathCommand.h"
#include "map/ui/TifLayer.h"
#include "map/ui/ViewChangeCommand.h"
#include "map/ui/ZoomCommands.h"
#include "project/ui/CloseProjectCommand.h"
#include "project/ui/EditCommands.h"
#include "project/ui/NewProjectCommand.h"
#include "project/ui/OpenProjectCommand.h"
#include "project/ui/RecentProjectCommand.h"
#include "project/ui/SaveCopyCommand.h"
#include "project/ui/SaveProjectCommand.h"
#include "project/ui/SysSettingCommand.h"
#include "project/ui/TimeZomeDlgCommand.h"
#include "quality/ui/DataInspectionCommand.h"
#include "quality/ui/EmptyPointCheckCommand.h"
#include "quality/ui/QualitySpecificateCommand.h"
#include "quality/ui/RepeatPointCheckCommand.h"
#include "quality/ui/ResolveRepeatsCommand.h"
#include "quality/ui/ReSurveyPointCheckCommand.h"
#include "reports/ui/ExportReportCommand.h"
#include "views/AttributeControl.h"
#include "views/find/FindCommand.h"
#include "views/history/HistoryCommand.h"
#include "views/problems/ProblemCommands.h"
#include "views/problems/ProblemWindow.h"
#include "views/tables/DesignLineTable.h"
#include "views/tables/SurveyDataTable.h"
#include "views/tables/SurveyTableHideCommand.h"
#include "views/trees/DesignLineControl.h"
#include "views/trees/SurveyDataControl.h"

namespace {

using namespace desktop::registration;

// clang-format off
[[maybe_unused]] const bool kRegistered[] = {
    assistant<DataProcess5Assistant>    ("DataProcess5",                 "助手"),
    window<ProgressStatusBarForSkyquill>("ProgressStatusBarForSkyquill", "Progress"),
    window<DesignLineTable>             ("DesignLineTable",              "设计测线列表"),
    window<SurveyDataTable>             ("SurveyDataTable",              "勘察数据列表"),
    window<ProblemWindow>               ("ProblemWindow",                "问题列表"),
    window<DesignLineControl>           ("DesignLineControl",            "设计测线控制窗口"),
    window<SurveyDataControl>           ("SurveyDataControl",            "勘察数据控制窗口"),
    window<AttributeControl>            ("AttributeControl",             "属性编辑窗口"),
    layer<DataProcessLayerImp>          ("DataProcessLayer",             "矢量图层"),
    layer<TifLayer>                     ("TifLayer",                     "TIF图层"),
    reactor<ReactorMoveTrans>           ("ReactorMoveTrans",             "平移"),
    reactor<ReactorZoomRectTrans>       ("ReactorZoomRectTrans",         "局部矩形放大"),
    reactor<SeletePointReactor>         ("SeletePointReactor",           "属性查看"),
    command<NewProjectCommand>          ("NewProjectCommand",            "新建工程"),
    command<OpenProjectCommand>         ("OpenProjectCommand",           "打开工程"),
    command<RecentProjectCommand>       ("RecentProjectCommand",         "最近工程"),
    command<SaveProjectCommand>         ("SaveProjectCommand",           "保存工程"),
    command<SaveCopyCommand>            ("SaveCopyCommand",              "工程另存副本"),
    command<CloseProjectCommand>        ("CloseProjectCommand",          "关闭工程"),
    command<SysSettingCommand>          ("SysSettingCommand",            "设置"),
    command<TimeZomeDlgCommand>         ("TimeZomeDlgCommand",           "时区修改"),
    command<QualitySpecificateCommand>  ("QualitySpecificateCommand",    "质量规范"),
    command<DataInspectionCommand>      ("DataInspectionCommand",        "数据检查"),
    command<EmptyPointCheckCommand>     ("EmptyPointCheckCommand",       "空点检查"),
    command<ReSurveyPointCheckCommand>  ("ReSurveyPointCheckCommand",    "复测点检查"),
    command<RepeatPointCheckCommand>    ("RepeatPointCheckCommand",      "重复点检查"),
    command<ResolveRepeatsCommand>      ("ResolveRepeatsCommand",        "重复测量取舍"),
    command<FindProblemsCommand>        ("FindProblemsCommand",          "查找问题"),
    command<ProblemStepCommand>         ("ProblemStepCommand",           "转到问题"),
    command<ImportCommand>              ("ImportCommand",                "导入数据"),
    command<CoordFormatCommand>         ("CoordFormatCommand",           "坐标格式"),
    command<AboutCommand>               ("AboutCommand",                 "关于"),
    command<DemoSurveyCommand>          ("DemoSurveyCommand",            "示例工程"),
    command<CountAzimuthCommand>        ("CountAzimuthCommand",          "方位角计算"),
    command<DesignSurveyLineCommand>    ("DesignSurveyLineCommand",      "设计测线"),
    command<ExportDesignCommand>        ("ExportDesignCommand",          "导出设计数据"),
    command<ExportSurveyCommand>        ("ExportSurveyCommand",          "导出测量数据"),
    command<ExportReportCommand>        ("ExportReportCommand",          "导出报告"),
    command<UndoCommand>                ("UndoCommand",                  "撤销"),
    command<RedoCommand>                ("RedoCommand",                  "重做"),
    command<EditStepsCommand>           ("EditStepsCommand",             "操作步骤"),
    command<HistoryCommand>             ("HistoryCommand",               "修改历史"),
    command<FindCommand>                ("FindCommand",                  "查找"),
    command<SurveyTableHideCommand>     ("SurveyTableHideCommand",       "勘察列表隐藏"),
    command<ViewChangeCommand>          ("ViewChangeCommand",            "更改视图"),
    command<DrawBoundaryCommand>        ("DrawBoundaryCommand",          "绘制边界"),
    command<DrawReceiverCommand>        ("DrawReceiverCommand",          "绘制接收线"),
    command<DrawExcitationCommand>      ("DrawExcitationCommand",        "绘制激发线"),
    command<BaseTiesCommand>            ("BaseTiesCommand",              "基准站连线"),
    command<ResultNamesCommand>         ("ResultNamesCommand",           "测点名称"),
    command<SetTifPathCommand>          ("SetTifPathCommand",            "TIF图叠加"),
    command<PPKMoveCommand>             ("PPKMoveCommand",               "地图移动"),
    command<PPKZoomInCommand>           ("PPKZoomInCommand",             "地图放大"),
    command<PPKZoomOutCommand>          ("PPKZoomOutCommand",            "地图缩小"),
    command<PPKZoomAllCommand>          ("PPKZoomAllCommand",            "全图"),
    command<PPKZoomRectCommand>         ("PPKZoomRectCommand",           "局部矩形放大"),
    command<LoadOnlineMapCommand>       ("LoadOnlineMapCommand",         "在线地图"),
    command<LoadRoadMapCommand>         ("LoadRoadMapCommand",           "平面地图"),
    command<LoadSatMapCommand>          ("LoadSatMapCommand",            "卫星地图"),
    command<LoadTerrainMapCommand>      ("LoadTerrainMapCommand",        "山地地图"),
    command<ManageBaseMapsCommand>      ("ManageBaseMapsCommand",        "管理底图"),
};
// clang-format on

} // namespace
