object CustomerForm: TCustomerForm
  Left = 300
  Top = 200
  BorderStyle = bsDialog
  Caption = '选择客户'
  ClientHeight = 120
  ClientWidth = 300
  Font.Charset = GB2312_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = '宋体'
  Font.Style = []
  OldCreateOrder = False
  Position = poMainFormCenter
  PixelsPerInch = 96
  TextHeight = 12
  object lblPick: TLabel
    Left = 16
    Top = 24
    Width = 24
    Height = 12
    Caption = '客户'
  end
  object edtPick: TEdit
    Left = 64
    Top = 20
    Width = 217
    Height = 20
    TabOrder = 0
    Text = '华东机械厂'
  end
  object btnOk: TButton
    Left = 64
    Top = 72
    Width = 75
    Height = 25
    Caption = '确定'
    Default = True
    ModalResult = 1
    TabOrder = 1
  end
  object btnCancel: TButton
    Left = 152
    Top = 72
    Width = 75
    Height = 25
    Cancel = True
    Caption = '取消'
    ModalResult = 2
    TabOrder = 2
  end
end
