object LogForm: TLogForm
  Left = 40
  Top = 60
  Caption = '订单日志'
  ClientHeight = 200
  ClientWidth = 320
  Font.Charset = GB2312_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = '宋体'
  Font.Style = []
  OldCreateOrder = False
  PixelsPerInch = 96
  TextHeight = 12
  object mmoLog: TMemo
    Left = 0
    Top = 0
    Width = 320
    Height = 161
    Align = alTop
    ReadOnly = True
    TabOrder = 0
  end
  object btnClearLog: TButton
    Left = 8
    Top = 168
    Width = 75
    Height = 25
    Caption = '清空'
    TabOrder = 1
    OnClick = btnClearLogClick
  end
  object btnHideLog: TButton
    Left = 96
    Top = 168
    Width = 75
    Height = 25
    Caption = '关闭日志'
    TabOrder = 2
    OnClick = btnHideLogClick
  end
end
