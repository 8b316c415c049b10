object OrderCenterForm: TOrderCenterForm
  Left = 180
  Top = 120
  BorderStyle = bsSingle
  Caption = '订单中心'
  ClientHeight = 424
  ClientWidth = 640
  Font.Charset = GB2312_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = '宋体'
  Font.Style = []
  Menu = mnuMain
  OldCreateOrder = False
  PixelsPerInch = 96
  TextHeight = 12
  object lblStatus: TLabel
    Left = 8
    Top = 168
    Width = 48
    Height = 12
    Caption = '订单状态'
  end
  object lblColumns: TLabel
    Left = 116
    Top = 168
    Width = 36
    Height = 12
    Caption = '显示列'
  end
  object lblFilter: TLabel
    Left = 224
    Top = 168
    Width = 48
    Height = 12
    Caption = '筛选客户'
  end
  object lblSort: TLabel
    Left = 224
    Top = 214
    Width = 48
    Height = 12
    Caption = '排序方式'
  end
  object tvDepartments: TTreeView
    Left = 8
    Top = 8
    Width = 160
    Height = 150
    HideSelection = False
    Indent = 19
    TabOrder = 0
    OnChange = tvDepartmentsChange
    OnDblClick = tvDepartmentsDblClick
    Items.NodeData = {
      01020000001F0000000000000000000000FFFFFFFFFFFFFFFF00000000020000
      00033B606C51F8531F0000000000000000000000FFFFFFFFFFFFFFFF00000000
      020000000300952E55E8901F0000000000000000000000FFFFFFFFFFFFFFFF00
      00000000000000034E531C4EC47E1F0000000000000000000000FFFFFFFFFFFF
      FFFF0000000000000000034E531753C47E1F0000000000000000000000FFFFFF
      FFFFFFFFFF000000000000000003C7912D8DE8901F0000000000000000000000
      FFFFFFFFFFFFFFFF00000000010000000306526C51F8531F0000000000000000
      000000FFFFFFFFFFFFFFFF000000000000000003D34EA850E890}
  end
  object lvOrders: TListView
    Left = 176
    Top = 8
    Width = 456
    Height = 150
    Checkboxes = True
    Columns = <
      item
        Caption = '订单号'
        Width = 80
      end
      item
        Caption = '客户'
        Width = 140
      end
      item
        Alignment = taRightJustify
        Caption = '金额'
        Width = 90
      end
      item
        Caption = '状态'
        Width = 90
      end>
    Items.ItemData = {
      01BA00000003000000FFFFFFFFFFFFFFFFFFFFFFFF0300000000000000044400
      300030003100054E531C4E3A67B0688253023300300003F25DA15B3868FFFFFF
      FFFFFFFFFFFFFFFFFF0300000000000000044400300030003200041753B965A2
      94C1940631003200350030002E00350003855FA15B3868FFFFFFFFFFFFFFFFFF
      FFFFFF0300000000000000044400300030003300045F6C575339823682023800
      380003F25DD153278DFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF}
    HideSelection = False
    RowSelect = True
    PopupMenu = pmOrders
    TabOrder = 1
    ViewStyle = vsReport
    OnClick = lvOrdersClick
    OnDblClick = lvOrdersDblClick
  end
  object lstStatus: TListBox
    Left = 8
    Top = 184
    Width = 100
    Height = 80
    ItemHeight = 12
    Items.Strings = (
      '待审核'
      '已审核'
      '已发货'
      '已作废')
    ExtendedSelect = False
    MultiSelect = True
    TabOrder = 2
    OnClick = lstStatusClick
  end
  object clbColumns: TCheckListBox
    Left = 116
    Top = 184
    Width = 100
    Height = 80
    OnClickCheck = clbColumnsClickCheck
    ItemHeight = 12
    Items.Strings = (
      '客户'
      '金额'
      '状态')
    TabOrder = 3
  end
  object cmbCustomer: TComboBox
    Left = 224
    Top = 184
    Width = 121
    Height = 20
    Style = csDropDownList
    ItemHeight = 12
    ItemIndex = 0
    TabOrder = 4
    Text = '全部'
    OnChange = cmbCustomerChange
    Items.Strings = (
      '全部'
      '华东机械厂'
      '北方钢铁'
      '江南船舶')
  end
  object cmbSort: TComboBox
    Left = 224
    Top = 230
    Width = 121
    Height = 20
    ItemHeight = 12
    TabOrder = 5
    Items.Strings = (
      '按订单号'
      '按金额')
  end
  object pcDetail: TPageControl
    Left = 360
    Top = 168
    Width = 272
    Height = 130
    ActivePage = tsLines
    TabOrder = 6
    OnChange = pcDetailChange
    object tsLines: TTabSheet
      Caption = '明细'
      object lblLines: TLabel
        Left = 8
        Top = 12
        Width = 24
        Height = 12
        Caption = '行数'
      end
      object edtLines: TEdit
        Left = 48
        Top = 8
        Width = 65
        Height = 20
        TabOrder = 0
        Text = '2'
      end
    end
    object tsNotes: TTabSheet
      Caption = '备注'
      ImageIndex = 1
      object mmoNotes: TMemo
        Left = 8
        Top = 8
        Width = 240
        Height = 80
        TabOrder = 0
        Lines.Strings = (
          '请先联系仓库')
      end
    end
    object tsFiles: TTabSheet
      Caption = '附件'
      ImageIndex = 2
    end
    object tsInternal: TTabSheet
      Caption = '内部'
      ImageIndex = 3
      TabVisible = False
    end
  end
  object tcPeriod: TTabControl
    Left = 8
    Top = 272
    Width = 337
    Height = 60
    TabOrder = 7
    Tabs.Strings = (
      '今天'
      '本周'
      '本月')
    TabIndex = 0
    OnChange = tcPeriodChange
    OnChanging = tcPeriodChanging
    object lblPeriod: TLabel
      Left = 12
      Top = 32
      Width = 120
      Height = 12
      Caption = '今天的订单'
    end
  end
  object tbsView: TTabSet
    Left = 360
    Top = 306
    Width = 272
    Height = 21
    Font.Charset = DEFAULT_CHARSET
    Tabs.Strings = (
      '列表'
      '图表'
      '打印 预览')
    TabIndex = 0
  end
  object tvRights: TRichTreeView
    Left = 8
    Top = 340
    Width = 337
    Height = 60
    Checkboxes = True
    Indent = 19
    TabOrder = 8
    Items.NodeData = {
      01030000001D0000000000000000000000FFFFFFFFFFFFFFFF00000000000000
      0002E567E28B1D0000000000000000000000FFFFFFFFFFFFFFFF000000000200
      000002EE4F39651D0000000000000000000000FFFFFFFFFFFFFFFF0000000000
      00000002A28B55531D0000000000000000000000FFFFFFFFFFFFFFFF00000000
      0000000002A25B37621D0000000000000000000000FFFFFFFFFFFFFFFF000000
      000000000002A15B3868}
  end
  object chkArchive: TCheckBox
    Left = 360
    Top = 340
    Width = 97
    Height = 17
    Caption = '包括归档'
    TabOrder = 9
  end
  object rbAll: TRadioButton
    Left = 360
    Top = 364
    Width = 81
    Height = 17
    Caption = '全部订单'
    Checked = True
    TabOrder = 10
    TabStop = True
  end
  object rbMine: TRadioButton
    Left = 448
    Top = 364
    Width = 81
    Height = 17
    Caption = '我的订单'
    TabOrder = 11
  end
  object stbCenter: TStatusBar
    Left = 0
    Top = 405
    Width = 640
    Height = 19
    Panels = <
      item
        Text = '选择订单'
        Width = 240
      end
      item
        Width = 80
      end
      item
        Text = '3 张订单'
        Width = 50
      end>
  end
  object pmOrders: TPopupMenu
    Left = 560
    Top = 32
    OnPopup = pmOrdersPopup
    object mniView: TMenuItem
      Caption = '查看订单'
      Default = True
      OnClick = mniViewClick
    end
    object mniLine: TMenuItem
      Caption = '-'
    end
    object mniExport: TMenuItem
      Caption = '导出为'
      object mniCsv: TMenuItem
        Caption = '逗号分隔'
        OnClick = mniExportClick
      end
      object mniXml: TMenuItem
        Caption = '结构文本'
        OnClick = mniExportClick
      end
    end
    object mniLock: TMenuItem
      AutoCheck = True
      Caption = '锁定'
      OnClick = mniLockClick
    end
    object mniVoid: TMenuItem
      Caption = '作废'
      Enabled = False
      OnClick = mniVoidClick
    end
    object mniDebug: TMenuItem
      Caption = '调试信息'
      Visible = False
    end
  end
  object mnuMain: TMainMenu
    Left = 592
    Top = 32
    object mniFile: TMenuItem
      Caption = '文件'
      object mniNew: TMenuItem
        Caption = '新建订单'
        ShortCut = 16462
        OnClick = mniNewClick
      end
      object mniFileLine: TMenuItem
        Caption = '-'
      end
      object mniHide: TMenuItem
        Caption = '关闭中心'
        OnClick = mniHideClick
      end
    end
  end
end
