#pragma once

#include "frame/platform/Form.h"
#include "frame/store/Recordset.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Ui
{
class frmTipOfDay;
}

/// Where it is remembered whether the tips come up at start: "1" or "0".
namespace TipSetting
{
inline constexpr std::string_view Section = "Options";
inline constexpr std::string_view Key = "Show Tips at Startup";
} // namespace TipSetting

/// Shows one tip of the store after another, picked at random.
class frmTipOfDay : public Form
{
    Q_OBJECT

public:
    explicit frmTipOfDay(QWidget *parent = nullptr);
    ~frmTipOfDay() override;

    /// The one live tip window, made on first use.
    [[nodiscard]] static frmTipOfDay &Global();

    void Form_Load() override;

private:
    bool LoadTips();
    void DoNextTip();
    void DisplayCurrentTip();

    std::unique_ptr<Ui::frmTipOfDay> mUi;
    Recordset rsTips;
    std::vector<std::string> mTips;
    /// Counted from 1.
    std::int32_t mCurrentTip = 0;
};
