#include "budget/totals_panel.h"

#include <string>
#include <utility>

namespace tarnwell::budget {
namespace {

enum Column : int { kItem, kTotal, kPercent };

constexpr std::size_t kBetweenTitles = 46;  // blanks

std::vector<forms::GridColumn> Columns() {
  const auto number = [](const char* title) {
    return forms::GridColumn{
        .title = title, .share = 0.22, .align = forms::GridAlign::kRight, .numeric = true};
  };
  return {{.title = "Item", .share = 0.5}, number("Total"), number("%")};
}

}  // namespace

TotalsPanel::TotalsPanel(forms::Container& parent) : panel(parent, "Panel3D1") {
  panel.SetVisible(false);
  items.SetSelection(forms::GridSelection::kRow);
  items.on_select = [this] { chart.SetHighlight(PointOfRow(items.current().row)); };
  chart.on_point = [this](int point) {
    if (const int row = RowOfPoint(point); row > 0) items.SetCurrent({row, kItem});
    chart.SetHighlight(point);
  };
  kind.Choose(0);
  kind.on_pick = [this](int option) { chart.SetKind(static_cast<forms::ChartKind>(option)); };
  orientation.Choose(0);
  orientation.on_pick = [this](int option) { chart.SetHorizontal(option == 1); };
  change_base.on_click = [this] {
    base_ = base_ == PercentBase::kIncome ? PercentBase::kExpenses : PercentBase::kIncome;
    ShowPercents();
  };
  close.on_click = [this] { Close(); };
}

void TotalsPanel::Open(int year, YearTotals totals) {
  totals_ = std::move(totals);
  panel.SetCaption("TOTALS FOR " + std::to_string(year) + std::string(kBetweenTitles, ' ') +
                   "Percentage Per Item");
  ShowSums();
  ShowItems();
  panel.SetVisible(true);
  items.Focus();
}

void TotalsPanel::ShowSums() {
  expenses.SetCaption(totals_.expenses);
  expenses_share.SetCaption(totals_.expenses_share);
  income.SetCaption(totals_.income);
  income_share.SetCaption(totals_.income_share);
  balance.SetCaption(totals_.balance);
  balance_share.SetCaption(totals_.balance_share);
  for (forms::Label* label : {&balance, &balance_share}) {
    label->SetColor(totals_.overdrawn ? kOverdrawn : forms::kBlack);
  }
}

void TotalsPanel::ShowItems() {
  {
    const forms::Grid::Batch batch(items);
    items.SetColumns(Columns());
    items.SetRows(static_cast<int>(totals_.items.size()) + 1);
    int row = 1;
    for (const ItemTotal& item : totals_.items) {
      items.SetText(row, kItem, item.item);
      items.SetText(row++, kTotal, item.total);
    }
    ShowPercents();
  }
  chart.SetPoints(ChartPoints(totals_));
  // One item and the heading: there is nothing to compare.
  change_base.SetEnabled(totals_.has_figures() && items.rows() != 2);
}

void TotalsPanel::ShowPercents() {
  const forms::Grid::Batch batch(items);
  int row = 1;
  for (const ItemTotal& item : totals_.items) {
    items.SetText(row++, kPercent, PercentOf(item, totals_, base_));
  }
  base_note.SetCaption(base_ == PercentBase::kIncome ? "% = Item Totals divided by Total Income"
                                                     : "% = Item Totals divided by Total Expenses");
}

void TotalsPanel::Close() {
  panel.SetVisible(false);
  base_ = PercentBase::kIncome;
  if (on_close) on_close();
}

int TotalsPanel::PointOfRow(int row) const {
  if (row < 1 || items.text(row, kTotal).empty()) return forms::ChartPicture::kNone;
  int point = 0;
  for (int above = 1; above < row; ++above) point += items.text(above, kTotal).empty() ? 0 : 1;
  return point;
}

int TotalsPanel::RowOfPoint(int point) const {
  for (int row = 1; row < items.rows(); ++row) {
    if (PointOfRow(row) == point) return row;
  }
  return 0;  // the balance has none
}

}  // namespace tarnwell::budget
