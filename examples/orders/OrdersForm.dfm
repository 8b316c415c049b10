object OrdersForm: TOrdersForm
  Left = 120
  Top = 80
  BorderStyle = bsSingle
  Caption = '订单管理'
  ClientHeight = 430
  ClientWidth = 640
  Font.Charset = GB2312_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = '宋体'
  Font.Style = []
  KeyPreview = False
  OldCreateOrder = False
  Position = poScreenCenter
  OnCloseQuery = FormCloseQuery
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 12
  object lblHelp: TLabel
    Left = 560
    Top = 12
    Width = 60
    Height = 12
    Hint = '打开帮助'
    Caption = '使用帮助'
    OnClick = lblHelpClick
  end
  object btnPin: TSpeedButton
    Left = 600
    Top = 32
    Width = 23
    Height = 22
    Hint = '固定窗口'
    AllowAllUp = True
    GroupIndex = 1
    OnClick = btnPinClick
  end
  object pnlOrder: TPanel
    Left = 8
    Top = 8
    Width = 400
    Height = 185
    BevelOuter = bvLowered
    TabOrder = 0
    object lblCustomer: TLabel
      Left = 16
      Top = 20
      Width = 48
      Height = 12
      Caption = '客户名称'
      FocusControl = edtCustomer
    end
    object lblQuantity: TLabel
      Left = 16
      Top = 52
      Width = 24
      Height = 12
      Caption = '数量'
    end
    object lblPrice: TLabel
      Left = 208
      Top = 52
      Width = 24
      Height = 12
      Caption = '单价'
    end
    object lblTotal: TLabel
      Left = 16
      Top = 84
      Width = 24
      Height = 12
      Caption = '金额'
    end
    object lblDelivery: TLabel
      Left = 208
      Top = 84
      Width = 48
      Height = 12
      Caption = '交货日期'
    end
    object lblRemark: TLabel
      Left = 16
      Top = 116
      Width = 24
      Height = 12
      Caption = '备注'
    end
    object edtCustomer: TEdit
      Left = 80
      Top = 16
      Width = 217
      Height = 20
      TabOrder = 0
      OnChange = edtCustomerChange
    end
    object btnChoose: TButton
      Left = 304
      Top = 14
      Width = 81
      Height = 25
      Caption = '选择客户...'
      TabOrder = 1
      OnClick = btnChooseClick
    end
    object edtQuantity: TEdit
      Left = 80
      Top = 48
      Width = 105
      Height = 20
      MaxLength = 8
      TabOrder = 2
      Text = '1'
    end
    object edtPrice: TEdit
      Left = 272
      Top = 48
      Width = 113
      Height = 20
      TabOrder = 3
      Text = '0'
    end
    object edtTotal: TEdit
      Left = 80
      Top = 80
      Width = 105
      Height = 20
      Color = clBtnFace
      ReadOnly = True
      TabOrder = 4
      Text = '0'
    end
    object dtpDelivery: TDateTimePicker
      Left = 272
      Top = 80
      Width = 113
      Height = 20
      Date = 39512.000000000000000000
      Time = 39512.000000000000000000
      TabOrder = 5
    end
    object mmoRemark: TMemo
      Left = 80
      Top = 112
      Width = 305
      Height = 33
      Lines.Strings = (
        '货到付款'
        '周末不送')
      TabOrder = 6
    end
    object btnCalculate: TButton
      Left = 80
      Top = 152
      Width = 75
      Height = 25
      Caption = '计算金额'
      Default = True
      TabOrder = 7
      OnClick = btnCalculateClick
    end
    object btnSaveOrder: TButton
      Left = 160
      Top = 152
      Width = 75
      Height = 25
      Caption = '保存'
      TabOrder = 8
      OnClick = btnSaveOrderClick
    end
    object btnApprove: TButton
      Left = 240
      Top = 152
      Width = 75
      Height = 25
      Caption = '审核'
      Enabled = False
      TabOrder = 9
      OnClick = btnApproveClick
    end
  end
  object grpPayment: TGroupBox
    Left = 416
    Top = 64
    Width = 209
    Height = 81
    Caption = '付款方式'
    TabOrder = 1
    object rbCash: TRadioButton
      Left = 16
      Top = 24
      Width = 81
      Height = 17
      Caption = '现金'
      Checked = True
      TabOrder = 0
      TabStop = True
      OnClick = PaymentClick
    end
    object rbTransfer: TRadioButton
      Left = 112
      Top = 24
      Width = 81
      Height = 17
      Caption = '转账'
      TabOrder = 1
      OnClick = PaymentClick
    end
    object chkInvoice: TCheckBox
      Left = 16
      Top = 48
      Width = 97
      Height = 17
      Caption = '开具发票'
      TabOrder = 2
    end
  end
  object chkUrgent: TCheckBox
    Left = 432
    Top = 152
    Width = 81
    Height = 17
    Caption = '加急'
    TabOrder = 2
    OnClick = chkUrgentClick
  end
  object chkMayApprove: TCheckBox
    Left = 520
    Top = 152
    Width = 97
    Height = 17
    Caption = '允许审核'
    TabOrder = 3
    OnClick = chkMayApproveClick
  end
  object pnlCustomer: TPanel
    Left = 8
    Top = 200
    Width = 400
    Height = 89
    BevelOuter = bvLowered
    TabOrder = 4
    object lblPhone: TLabel
      Left = 16
      Top = 20
      Width = 48
      Height = 12
      Caption = '联系电话'
    end
    object edtPhone: TEdit
      Left = 80
      Top = 16
      Width = 217
      Height = 20
      TabOrder = 0
    end
    object btnSaveCustomer: TButton
      Left = 80
      Top = 48
      Width = 75
      Height = 25
      Caption = '保存'
      TabOrder = 1
      OnClick = btnSaveCustomerClick
    end
  end
  object btnLog: TButton
    Left = 416
    Top = 200
    Width = 97
    Height = 25
    Caption = '订单日志'
    TabOrder = 5
    OnClick = btnLogClick
  end
  object btnImport: TButton
    Left = 528
    Top = 200
    Width = 97
    Height = 25
    Caption = '导入订单'
    TabOrder = 6
    OnClick = btnImportClick
  end
  object btnStock: TButton
    Left = 416
    Top = 232
    Width = 97
    Height = 25
    Caption = '检查库存'
    TabOrder = 9
    OnClick = btnStockClick
  end
  object btnExport: TButton
    Left = 528
    Top = 232
    Width = 97
    Height = 25
    Caption = '导出...'
    TabOrder = 10
    OnClick = btnExportClick
  end
  object btnLater: TButton
    Left = 416
    Top = 264
    Width = 97
    Height = 25
    Caption = '延时打开'
    TabOrder = 11
    OnClick = btnLaterClick
  end
  object btnCenter: TButton
    Left = 528
    Top = 264
    Width = 97
    Height = 25
    Caption = '订单中心'
    TabOrder = 12
    OnClick = btnCenterClick
  end
  object txtState: TStaticText
    Left = 8
    Top = 304
    Width = 617
    Height = 17
    AutoSize = False
    BorderStyle = sbsSunken
    Caption = '就绪'
    TabOrder = 7
  end
  object btnClose: TBitBtn
    Left = 550
    Top = 392
    Width = 75
    Height = 25
    TabOrder = 8
    Kind = bkClose
  end
end
